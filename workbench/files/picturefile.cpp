// SPDX-License-Identifier: GPL-3.0-or-later
#include "picturefile.h"

#include "filenametext.h"
#include "spectralmetadata.h"

#include <QCoreApplication>

#include <new>

PictureFile::PictureFile(const QString &path)
    : m_path(path)
{
}

QString PictureFile::FrameDescription(int) const
{
    return QString();
}

SpectralAxis PictureFile::AxisOf(int) const { return SpectralAxis(); }

SpectralAxis PictureFile::AxisOfFirst(const QVector<MetadataEntry> &metadata)
{
    QString fault;
    const SpectralAxis axis = AxisOfMetadata(metadata, m_info.size, &fault);
    if (!fault.isEmpty())
        AddWarning(QCoreApplication::translate("PictureFile", "\u201c%1\u201d: %2. %3")
                       .arg(FileNameTextOf(m_path), fault, DamagedAdvice()));
    return axis;
}

bool PictureFile::ReadFrame(int index, Picture &frame, QString &error, FrameRows *rows)
{
    FileFault fault;
    bool done = false;
    if (index < 0 || index >= m_info.frames) {
        fault.Set(QCoreApplication::translate("PictureFile", "there is no frame %1 among its %2").arg(index + 1).arg(m_info.frames),
                  QCoreApplication::translate("PictureFile", "Choose a frame that is there."));
    } else {
        try {
            done = Decode(index, frame, rows, fault);
        } catch (const std::bad_alloc &) {
            fault.Set(QCoreApplication::translate("PictureFile", "there is not enough memory for frame %1").arg(index + 1),
                      MemoryAdvice());
        }
    }
    error = done ? QString() : ReadFaultText(m_path, fault);
    return done;
}

void PictureFile::AddWarning(const QString &message)
{
    if (!m_info.warning.isEmpty())
        m_info.warning += '\n';
    m_info.warning += message;
}
