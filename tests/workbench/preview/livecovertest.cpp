// SPDX-License-Identifier: GPL-3.0-or-later
#include "livecover.h"
#include "guardedtest.h"
#include "liveorientation.h"
#include "viewcodes.h"

#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <limits>
#include <memory>

/// A cover hides a part of the picture on the screen and stays on that part.
class LiveCoverTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void init() override
    {
        StartGuard();
        m_folder = std::make_unique<QTemporaryDir>();
        m_settings = std::make_unique<QSettings>(m_folder->filePath("settings.ini"), QSettings::IniFormat);
        m_orientation = std::make_unique<LiveOrientation>();
        m_cover = std::make_unique<LiveCover>(m_orientation.get(), m_settings.get());
        m_scene = std::make_unique<QGraphicsScene>();
        m_cover->ShowIn(m_scene.get());
        m_cover->slotSetPictureSize(QSize(200, 100));
    }

    void cleanup() override
    {
        m_scene.reset();
        m_cover.reset();
        m_orientation.reset();
        m_settings.reset();
        EndGuard();
    }

    void drawingShowsTheFrameUntilACoverIsSet()
    {
        QSignalSpy frame(m_cover.get(), SIGNAL(signalSetCoverFrameVisible(bool)));
        QSignalSpy filled(m_cover.get(), SIGNAL(signalFinishFillCover(QRect)));
        QSignalSpy opacity(m_cover.get(), SIGNAL(signalSetOpacity(float)));
        m_cover->slotSetDrawing(true);
        m_cover->slotSetDrawing(true);
        QCOMPARE(frame.count(), 1);
        QCOMPARE(frame.at(0).at(0).toBool(), true);
        QCOMPARE(opacity.at(0).at(0).toFloat(), 0.75F);
        QVERIFY(!Item()->isVisible());

        m_cover->slotManualCoverFinished(QRect(10, 20, 30, 40));
        QCOMPARE(frame.last().at(0).toBool(), false);
        QCOMPARE(filled.last().at(0).toRect(), QRect(10, 20, 30, 40));
        QCOMPARE(Item()->rect(), QRectF(10, 20, 30, 40));
        QVERIFY(Item()->isVisible());
        QVERIFY(!m_cover->IsDrawing());
    }

    void leavingTheFrameKeepsTheCoverThatWas()
    {
        m_cover->slotManualCoverFinished(QRect(10, 20, 30, 40));
        m_cover->slotSetDrawing(true);
        QSignalSpy filled(m_cover.get(), SIGNAL(signalFinishFillCover(QRect)));
        m_cover->slotStopManualCover();
        QCOMPARE(filled.last().at(0).toRect(), QRect(10, 20, 30, 40));
        QVERIFY(Item()->isVisible());
    }

    void resetTakesItAway()
    {
        m_cover->slotManualCoverFinished(QRect(10, 20, 30, 40));
        m_cover->slotSetDrawing(true);
        m_cover->ResetCover();
        QVERIFY(!m_cover->HasCover());
        QVERIFY(!m_cover->IsDrawing());
        QVERIFY(!Item()->isVisible());
    }

    /// The picture is 200 x 100; the cover 30 x 40 at (10, 20).
    void staysOnTheSamePartWhenThePictureTurns_data()
    {
        QTest::addColumn<int>("turn");
        QTest::addColumn<QRect>("seen");
        QTest::newRow("flipped left to right") << int(FlipHorizontal) << QRect(160, 20, 30, 40);
        QTest::newRow("flipped top to bottom") << int(FlipVertical) << QRect(10, 40, 30, 40);
        QTest::newRow("turned right") << int(RotateBy90) << QRect(40, 10, 40, 30);
    }

    void staysOnTheSamePartWhenThePictureTurns()
    {
        QFETCH(int, turn);
        QFETCH(QRect, seen);
        m_cover->slotManualCoverFinished(QRect(10, 20, 30, 40));
        m_orientation->slotSetMirrorRotate(turn);
        m_cover->slotSetPictureSize(m_orientation->Get().Map(QSize(200, 100)));
        QCOMPARE(m_cover->Rect(), seen);
        QCOMPARE(Item()->rect(), QRectF(seen));
    }

    void aCoverDrawnOnATurnedPictureComesUprightWithIt()
    {
        m_orientation->slotSetMirrorRotate(RotateBy90);
        m_cover->slotManualCoverFinished(QRect(40, 10, 40, 30));
        for (int turn = 0; turn < 3; ++turn)
            m_orientation->slotSetMirrorRotate(RotateBy90);
        QCOMPARE(m_cover->Rect(), QRect(10, 20, 30, 40));
    }

    void isCutAtThePicture()
    {
        m_cover->slotManualCoverFinished(QRect(180, -5, 50, 20));
        QCOMPARE(m_cover->Rect(), QRect(180, 0, 20, 15));
    }

    void aPictureOfAnotherSizeHasNone()
    {
        m_cover->slotManualCoverFinished(QRect(10, 20, 30, 40));
        m_cover->slotSetPictureSize(QSize(100, 100));
        QVERIFY(!m_cover->HasCover());
    }

    void opacityIsKeptInTheSettings()
    {
        m_cover->SetOpacity(0.25F);
        QCOMPARE(Item()->opacity(), 0.25);
        m_scene.reset();
        m_cover.reset();
        m_cover = std::make_unique<LiveCover>(m_orientation.get(), m_settings.get());
        QCOMPARE(m_cover->Opacity(), 0.25F);
    }

    void anOpacityThatCannotBeIsReplaced_data()
    {
        QTest::addColumn<float>("stored");
        QTest::newRow("above one") << 7.0F;
        QTest::newRow("negative") << -0.5F;
        QTest::newRow("no number") << std::numeric_limits<float>::quiet_NaN();
    }

    void anOpacityThatCannotBeIsReplaced()
    {
        QFETCH(float, stored);
        m_cover->SetOpacity(stored);
        QCOMPARE(m_cover->Opacity(), 0.75F);
    }

    void outlivesTheScene()
    {
        m_scene.reset();
        m_cover->slotManualCoverFinished(QRect(10, 20, 30, 40));
        QVERIFY(m_cover->HasCover());
    }

private:
    QGraphicsRectItem *Item() const
    {
        return qgraphicsitem_cast<QGraphicsRectItem *>(m_scene->items().value(0));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QSettings> m_settings;
    std::unique_ptr<LiveOrientation> m_orientation;
    std::unique_ptr<LiveCover> m_cover;
    std::unique_ptr<QGraphicsScene> m_scene;
};

GUARDED_TEST_MAIN(LiveCoverTest)
#include "livecovertest.moc"
