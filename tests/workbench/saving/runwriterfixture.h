// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "guardedtest.h"
#include "runsample.h"
#include "runwriter.h"

#include <QTemporaryDir>

#include <memory>

/// Base of the tests of recordings on the disk: "run" in a folder of the test's own, of frames from RunSample.
class RunWriterFixture : public GuardedTest
{
    Q_OBJECT

protected slots:
    void init() override;
    void cleanup() override;

protected:
    static constexpr QSize Size{ 37, 21 };

    static void AddFormats();
    /// Formats with all frames in one file.
    static void AddCubes();

    QString Path(RunFormat format) const { return m_folder->filePath("run." + RunSuffix(format)); }
    /// What only an unfinished recording has.
    QStringList LeftOvers() const;
    std::unique_ptr<RunWriter> Begin(RunFormat format, PixelLayout layout);
    bool Finish(RunWriter *writer, int frames, QString *error = nullptr);
    std::unique_ptr<RunWriter> Record(RunFormat format, PixelLayout layout, int frames, int padding);
    void CompareFrames(const QStringList &files, PixelLayout layout, int frames);

    std::unique_ptr<QTemporaryDir> m_folder;
    RunOutcome m_outcome;
};
