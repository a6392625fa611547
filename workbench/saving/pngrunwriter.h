// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "runwriter.h"

/// A PNG file for each frame: "name_000001.png" and so on, with the facts and the frame's id and times as texts. Each
/// file is whole as soon as it is there.
class PngRunWriter : public RunWriter
{
public:
    explicit PngRunWriter(const QString &path);

    static QString FramePath(const QString &path, int frame);

protected:
    bool CheckName(FileFault &fault) const override;
    bool CreateData(FileFault &fault) override;
    bool ReopenData(int *frames, FileFault &fault) override;
    bool AppendFrame(const uchar *samples, const FrameStamp &stamp, FileFault &fault) override;
    bool CutTo(int frames, FileFault &fault) override;
    bool ReadBack(int frame, uchar *samples) override;
    bool MoveFrame(int from, int to, FileFault &fault) override;
    std::function<int()> DataSync() override;
    bool Complete(const RunOutcome &outcome, FileFault &fault) override;
    bool Place(FileFault &fault) override;
    void RemoveData() override;
    QStringList DataFiles() const override;

private:
    bool AddLedger(const RunOutcome &outcome, FileFault &fault) const;

    int m_placed = 0; ///< files of this recording that have their names
    QStringList m_notSynced; ///< of these, those that may not be on the disk yet
};
