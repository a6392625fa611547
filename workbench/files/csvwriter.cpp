// SPDX-License-Identifier: GPL-3.0-or-later
#include "csvwriter.h"

#include <charconv>

namespace {

constexpr int blockBytes = 1 << 20;

/// On one line, whatever a file name holds.
QByteArray Comment(const QString &text)
{
    return "# " + text.simplified().toUtf8() + '\n';
}

template <typename Sample>
void AppendRow(const Sample *samples, int count, QByteArray &text)
{
    char number[64];
    for (int i = 0; i < count; ++i) {
        // The shortest text that reads back as the same sample.
        const std::to_chars_result end = std::to_chars(number, number + sizeof(number), samples[i]);
        if (i > 0)
            text.append(',');
        text.append(number, int(end.ptr - number));
    }
    text.append('\n');
}

} // namespace

CsvWriter::CsvWriter(const QString &path)
    : m_target(path)
{
}

bool CsvWriter::Create(const QString &source, FileFault &fault)
{
    if (!m_target.Create(fault))
        return false;
    m_file.setFileName(m_target.TemporaryPath());
    if (!m_file.open(QIODevice::WriteOnly))
        return fault.Set(m_file.errorString(), DiskAdvice());
    return Put(Comment("picture: " + source), fault);
}

bool CsvWriter::Append(const Picture &frame, const QString &title, FileFault &fault)
{
    QByteArray text;
    if (!title.isEmpty())
        text += Comment(title);
    text += Comment(QString("size: %1 x %2 pixels, a line for each row from the top").arg(frame.Width()).arg(frame.Height()));
    text += Comment("samples: " + SampleTypeName(frame.Type()));
    text += Comment(frame.Channels() == 3 ? QString("columns: red, green and blue of each pixel")
                                          : QString("columns: the pixels from the left"));
    for (int y = 0; y < frame.Height(); ++y) {
        VisitSampleType(frame.Type(), [&](auto sample) {
            AppendRow(frame.Samples<decltype(sample)>(y), frame.Width() * frame.Channels(), text);
        });
        if (text.size() < blockBytes)
            continue;
        if (!Put(text, fault))
            return false;
        text.clear();
    }
    return Put(text, fault);
}

bool CsvWriter::Put(const QByteArray &text, FileFault &fault)
{
    return m_file.write(text) == text.size() ? true : fault.Set(m_file.errorString(), DiskAdvice());
}

bool CsvWriter::Commit(FileFault &fault)
{
    if (!m_file.flush())
        return fault.Set(m_file.errorString(), DiskAdvice());
    m_file.close();
    return m_target.Commit(fault);
}
