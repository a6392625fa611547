// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cubefile.h"
#include "runwriter.h"

#include <fitsio.h>

/// A FITS cube (FITS 4.0): the primary array holds the frames, its first row the bottom of the picture, 16-bit samples
/// with BZERO 32768; a binary table FRAMES behind it tells id and times of each. Mono only.
class FitsRunWriter : public RunWriter
{
public:
    explicit FitsRunWriter(const QString &path);

protected:
    bool CreateData(FileFault &fault) override;
    bool ReopenData(int *frames, FileFault &fault) override;
    bool AppendFrame(const uchar *samples, const FrameStamp &stamp, FileFault &fault) override;
    bool CutTo(int frames, FileFault &fault) override;
    bool ReadBack(int frame, uchar *samples) override;
    bool MoveFrame(int from, int to, FileFault &fault) override;
    std::function<int()> DataSync() override { return m_cube.DataSync(); }
    bool Complete(const RunOutcome &outcome, FileFault &fault) override;
    bool Place(FileFault &fault) override;
    void RemoveData() override;

private:
    QByteArray Header(int frames) const;
    void FillRows(const uchar *samples);
    void WriteExposure(fitsfile *fits, int *status) const;
    bool AddFactsAndTable(const RunOutcome &outcome, FileFault &fault);

    CubeFile m_cube;
    std::vector<uchar> m_rows; ///< of one frame as the file wants them
};
