// SPDX-License-Identifier: GPL-3.0-or-later
#include "tiffrunwriter.h"

#include "omedescription.h"
#include "tiffdirectories.h"

#include <QFile>

#include <cerrno>

TiffRunWriter::TiffRunWriter(const QString &path)
    : RunWriter(path, RunFormat::Tiff)
{
}

bool TiffRunWriter::CreateData(FileFault &fault)
{
    // No TIFF reader takes the file before it has its header.
    return m_cube.Create(UnfinishedPath(), QByteArray(TiffDirectories::HeaderBytes, '\0'),
                         Facts().FrameBytes(), fault);
}

bool TiffRunWriter::ReopenData(int *frames, FileFault &fault)
{
    return m_cube.Reopen(UnfinishedPath(), TiffDirectories::HeaderBytes, Facts().FrameBytes(), frames, fault);
}

bool TiffRunWriter::AppendFrame(const uchar *samples, const FrameStamp &, FileFault &fault)
{
    return m_cube.Append(samples, fault);
}

bool TiffRunWriter::CutTo(int frames, FileFault &fault) { return m_cube.CutTo(frames, fault); }

bool TiffRunWriter::ReadBack(int frame, uchar *samples) { return m_cube.ReadFrame(frame, samples); }

bool TiffRunWriter::MoveFrame(int from, int to, FileFault &fault)
{
    std::vector<uchar> samples(size_t(Facts().FrameBytes()));
    return m_cube.ReadFrame(from, samples.data()) ? m_cube.WriteFrame(to, samples.data(), fault)
                                                  : RunDisk::SetSystemFault(fault, EIO);
}

bool TiffRunWriter::Complete(const RunOutcome &outcome, FileFault &fault)
{
    TiffDirectories directories(Facts(), FramesWritten());
    directories.SetFirstDescription(OmeDescription(Facts(), outcome, Stamps(), Path()));
    return directories.Write([&](const QByteArray &bytes) { return m_cube.WriteEnd(bytes, fault); })
           && m_cube.WriteHeader(directories.Header(), fault) && m_cube.Synchronise(fault);
}

bool TiffRunWriter::Place(FileFault &fault)
{
    m_cube.Close();
    return RunDisk::Rename(UnfinishedPath(), Path(), fault);
}

void TiffRunWriter::RemoveData()
{
    m_cube.Close();
    QFile::remove(UnfinishedPath());
}
