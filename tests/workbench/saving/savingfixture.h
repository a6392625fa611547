// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framesaving.h"
#include "guardedtest.h"
#include "runsample.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <memory>

/// What a signal of the saving thread said, taken over in the test's thread (a QSignalSpy takes it in the sender's).
class Said : public QObject
{
    Q_OBJECT

public:
    Said(FrameSaving *saving, const char *signal)
    {
        connect(saving, signal, this, SLOT(slotTake(int)), Qt::QueuedConnection);
    }

    QVector<int> values;

private slots:
    void slotTake(int value) { values << value; }
};

/// Base of the tests of a run: its order, of 5 small frames into "run.tif", and the camera, a thread of the test's.
class SavingFixture : public GuardedTest
{
    Q_OBJECT

protected slots:
    void init() override;
    void cleanup() override;

protected:
    static constexpr QSize Size{ 32, 16 };
    static constexpr int FrameBytes = 32 * 16;
    static constexpr int MsToWait = 20000;

    void Make(const FrameSaving::WriterMaker &maker);
    /// Frames 0, 1, 2 and so on from a thread like the camera's, until the run takes no more. A run begins to take them
    /// some time after its start; the first that is taken is frame 0.
    void SendUntilEnded();
    void SendWhenTaken(int frames);
    /// A run begins to take frames some time after its start.
    bool SendUntilTaken(const CameraFrame &frame);
    /// Waits for the end of the run.
    RunReceipt Receipt();
    QStringList FilesLeft() const { return QDir(m_folder->path()).entryList(QDir::Files); }
    void CompareFile(const RunReceipt &receipt, int first, int frames);

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<FrameSaving> m_saving;
    std::unique_ptr<QSignalSpy> m_ended;
    RunOrder m_order;
};
