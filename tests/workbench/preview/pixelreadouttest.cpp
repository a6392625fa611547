// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "liveorientation.h"
#include "livepreview.h"
#include "pixelreadout.h"
#include "testframes.h"
#include "viewcodes.h"

#include <QSignalSpy>

/// The value under the mouse is the sample of the camera, not the grey on the screen.
class PixelReadoutTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void showsTheRawSample_data()
    {
        QTest::addColumn<PixelLayout>("layout");
        QTest::addColumn<QPointF>("scenePos");
        QTest::addColumn<QString>("info");
        QTest::newRow("8 bit") << PixelLayout::Mono8 << QPointF(3.9, 2.0) << "28";
        QTest::newRow("12 bit") << PixelLayout::Mono12 << QPointF(3, 2) << "28";
        QTest::newRow("16 bit, last pixel") << PixelLayout::Mono16 << QPointF(19.9, 9.9) << "114";
        QTest::newRow("colour") << PixelLayout::Rgb8 << QPointF(3, 2) << "(3, 2, 5)";
        QTest::newRow("left of the picture") << PixelLayout::Mono8 << QPointF(-0.5, 2) << "";
        QTest::newRow("below the picture") << PixelLayout::Mono8 << QPointF(3, 10) << "";
    }

    void showsTheRawSample()
    {
        QFETCH(PixelLayout, layout);
        QFETCH(QPointF, scenePos);
        QFETCH(QString, info);
        ShowFrame(TestFrames::Make(20, 10, layout, 5));
        QSignalSpy spy(m_readout.get(), SIGNAL(signalUpdatePixelInfo(QPointF, QString)));
        m_readout->slotUpdateMousePosition(scenePos);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).toPointF(), scenePos);
        QCOMPARE(spy.at(0).at(1).toString(), info);
    }

    void followsTheFramesWhileTheMouseRests()
    {
        ShowFrame(TestFrames::Make(20, 10, PixelLayout::Mono8, 5));
        m_readout->slotUpdateMousePosition(QPointF(0, 0));
        QSignalSpy spy(m_readout.get(), SIGNAL(signalUpdatePixelInfo(QPointF, QString)));
        m_preview->OnFrame(TestFrames::Make(20, 10, PixelLayout::Mono8, 77));
        QVERIFY(spy.wait());
        QCOMPARE(spy.last().at(1).toString(), QString("77"));
    }

    void readsThroughTheOrientation()
    {
        ShowFrame(TestFrames::Make(20, 10, PixelLayout::Mono8, 5));
        m_orientation->slotSetMirrorRotate(FlipHorizontal);
        QSignalSpy spy(m_readout.get(), SIGNAL(signalUpdatePixelInfo(QPointF, QString)));
        m_readout->slotUpdateMousePosition(QPointF(0, 0));
        QCOMPARE(spy.last().at(1).toString(), QString("24"));
    }

    void saysNothingWithoutAFrame()
    {
        TestFrameSource source;
        LiveOrientation orientation;
        TestLevels levels;
        LivePreview preview(&source, &orientation, &levels.live);
        PixelReadout readout(&preview, &orientation);
        QSignalSpy spy(&readout, SIGNAL(signalUpdatePixelInfo(QPointF, QString)));
        readout.slotUpdateMousePosition(QPointF(0, 0));
        QCOMPARE(spy.at(0).at(1).toString(), QString());
    }

    void cleanup() override
    {
        m_readout.reset();
        m_preview.reset();
        m_orientation.reset();
        EndGuard();
    }

private:
    void ShowFrame(const CameraFrame &frame)
    {
        m_orientation = std::make_unique<LiveOrientation>();
        m_preview = std::make_unique<LivePreview>(&m_source, m_orientation.get(), &m_levels.live);
        m_readout = std::make_unique<PixelReadout>(m_preview.get(), m_orientation.get());
        m_preview->StartPreview();
        m_preview->OnFrame(frame);
        QTRY_VERIFY(!m_preview->ShownFrame().IsNull());
    }

    TestFrameSource m_source;
    TestLevels m_levels;
    std::unique_ptr<LiveOrientation> m_orientation;
    std::unique_ptr<LivePreview> m_preview;
    std::unique_ptr<PixelReadout> m_readout;
};

GUARDED_TEST_MAIN(PixelReadoutTest)
#include "pixelreadouttest.moc"
