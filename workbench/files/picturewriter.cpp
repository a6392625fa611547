// SPDX-License-Identifier: GPL-3.0-or-later
#include "picturewriter.h"

#include <QCoreApplication>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(PictureWriter)
};

} // namespace

PictureWriter::PictureWriter(const QString &path, const SaveOptions &options)
    : m_path(path)
    , m_options(options)
    , m_file(path)
{
}

bool PictureWriter::Create(QString &error)
{
    FileFault fault;
    return Report(m_file.Create(fault), fault, error);
}

bool PictureWriter::Append(const Picture &frame, QString &error)
{
    FileFault fault;
    bool done = false;
    if (frame.IsNull() || m_framesWritten == m_options.frameCount) {
        fault.Set(Text::tr("frame %1 of %2 was to be written").arg(m_framesWritten + 1).arg(m_options.frameCount), Text::tr("Save it again."));
    } else if (m_framesWritten > 0 && !m_shape.Fits(frame)) {
        fault.Set(Text::tr("frame %1 has another size or sample type than the first one").arg(m_framesWritten + 1),
                  Text::tr("Save the frames to files of their own."));
    } else {
        m_shape = {frame.Size(), frame.Channels(), frame.Type()};
        done = Write(frame, fault);
        m_framesWritten += done ? 1 : 0;
    }
    return Report(done, fault, error);
}

bool PictureWriter::Commit(QString &error)
{
    FileFault fault;
    bool done = false;
    if (m_framesWritten < m_options.frameCount)
        fault.Set(Text::tr("only %1 of its %2 frames were written").arg(m_framesWritten).arg(m_options.frameCount), DiskAdvice());
    else
        done = Finish(fault) && m_file.Commit(fault);
    return Report(done, fault, error);
}

bool PictureWriter::Report(bool done, const FileFault &fault, QString &error) const
{
    error = done ? QString() : WriteFaultText(m_path, fault);
    return done;
}
