// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cubefile.h"
#include "runwriter.h"

/// A multi-page TIFF file with an OME-XML description. The samples lie one frame behind the other, and the directories
/// behind them are written at the end, when it is known whether the file needs the 64-bit offsets of BigTIFF.
class TiffRunWriter : public RunWriter
{
public:
    explicit TiffRunWriter(const QString &path);

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
    CubeFile m_cube;
};
