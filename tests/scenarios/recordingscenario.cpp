// SPDX-License-Identifier: GPL-3.0-or-later
#include "recordingscenario.h"

#include "openpicture.h"
#include "testchartscene.h"

void RecordingScenario::init()
{
    ScenarioTest::init();
    m_workbench->link.SetRegion(SmallRegion);
    QVERIFY(m_workbench->WaitForNextPicture());
    m_settings = RecordingSettings();
    m_settings.folder = m_folder->path();
    m_settings.pattern = "run{number}";
    m_settings.frames = 20;
    m_ended = std::make_unique<QSignalSpy>(Desk(), SIGNAL(signalRunEnded(RunReceipt)));
}

void RecordingScenario::cleanup()
{
    m_ended.reset();
    ScenarioTest::cleanup();
}

RunReceipt RecordingScenario::Receipt()
{
    if (m_ended->isEmpty() && !m_ended->wait(MsToWait))
        qFatal("the run did not end");
    return m_ended->takeFirst().at(0).value<RunReceipt>();
}

void RecordingScenario::CompareWithTheScene(const RunReceipt &receipt, int frames)
{
    QVERIFY2(!receipt.files.isEmpty(), qPrintable(receipt.Text()));
    QString error;
    const auto file = OpenPicture(receipt.files.first(), error);
    QVERIFY2(file, qPrintable(error));
    QCOMPARE(file->Info().frames, frames);
    QVERIFY(frames > 0);
    for (const int index : { 0, frames - 1 }) {
        Picture picture;
        QVERIFY2(file->ReadFrame(index, picture, error), qPrintable(error));
        QCOMPARE(picture.Size(), SmallRegion.size());
        const Picture &seen = picture;
        for (int y = 0; y < SmallRegion.height(); ++y) {
            for (int x = 0; x < SmallRegion.width(); ++x) {
                const QPoint place = SmallRegion.topLeft() + QPoint(x, y);
                QCOMPARE(int(seen.Row(y)[x]),
                         TestChartScene::ExpectedValue(place.x(), place.y(), 2048, 2048, 8));
            }
        }
    }
}
