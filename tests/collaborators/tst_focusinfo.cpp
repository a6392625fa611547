// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"

#include "fakespectrumuimanager.h"
#include "focusinfo.h"

#include <QGraphicsItem>
#include <QGraphicsView>
#include <QPen>

#include <algorithm>
#include <memory>

namespace {

template<class Item>
QVector<Item *> ItemsOf(const QGraphicsScene &scene)
{
    QVector<Item *> found;
    for (QGraphicsItem *item : scene.items(Qt::AscendingOrder)) {
        if (auto *wanted = qgraphicsitem_cast<Item *>(item))
            found << wanted;
    }
    return found;
}

QVector<QRectF> Rectangles(const QGraphicsScene &scene)
{
    QVector<QRectF> rectangles;
    for (const QGraphicsRectItem *item : ItemsOf<QGraphicsRectItem>(scene))
        rectangles << item->rect();
    std::sort(rectangles.begin(), rectangles.end(),
              [](const QRectF &a, const QRectF &b) { return a.x() < b.x(); });
    return rectangles;
}

} // namespace

class TestFocusInfo : public GuardedTest
{
    Q_OBJECT

private slots:
    void init() override;
    void cleanup() override;
    void HasTheObjectOfItsType();
    void TheObjectsAreConnectedByTheirSpelling_data();
    void TheObjectsAreConnectedByTheirSpelling();
    void DrawsOneMarkPerSpectralLine();
    void LevelLinesAreAsLongAsTheirRectangleIsWide();
    void ShorterListsLeaveMarksOut();
    void NewMarksReplaceTheOldOnes();
    void ShowModeChoosesTheMarks_data();
    void ShowModeChoosesTheMarks();
    void TextsOfCloseLinesStandBelowEachOther();
    void LinesChosenByHandAreDashed();
    void TracksAreRectanglesWithNumbers();
    void NumbersOfManyTracksStayAtThem();
    void ClearingTakesTheMarksOut();
    void TheCrossLineFollowsItsSlots();
    void TheCrossLineCoversThePicture();
    void ARetiredCrossLineStaysAway();
    void GoesWithItsScene();
    void TakesItsMarksAlong();

private:
    /// Rows of the screen with something of a text in them.
    int TextRows() const;
    QGraphicsObject *Line(const FocusInfo &info) const;

    const FakeSpectrumUIManager m_settings;
    std::unique_ptr<QGraphicsScene> m_scene;
    std::unique_ptr<QGraphicsView> m_view;
};

void TestFocusInfo::init()
{
    StartGuard();
    m_scene = std::make_unique<QGraphicsScene>(QRectF(0, 0, 400, 300));
    m_scene->setBackgroundBrush(Qt::black);
    m_view = std::make_unique<QGraphicsView>(m_scene.get());
    m_view->setFrameShape(QFrame::NoFrame);
    m_view->setFixedSize(400, 300);
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
}

void TestFocusInfo::cleanup()
{
    m_view.reset();
    m_scene.reset();
    EndGuard();
}

/// The cross line or the band, whichever there is.
QGraphicsObject *TestFocusInfo::Line(const FocusInfo &info) const
{
    QObject *line = info.GetCrossLineObject() ? info.GetCrossLineObject() : info.GetFVBLineObject();
    return qobject_cast<QGraphicsObject *>(line);
}

void TestFocusInfo::HasTheObjectOfItsType()
{
    QCOMPARE(int(FocusAssistanceInfo), 0);
    QCOMPARE(int(FVBAndMultiTrackInfo), 3);
    FocusInfo focus(m_scene.get(), FocusAssistanceInfo);
    QVERIFY(focus.GetCrossLineObject());
    QVERIFY(!focus.GetFVBLineObject());
    FocusInfo band(m_scene.get(), FVBAndMultiTrackInfo);
    QVERIFY(!band.GetCrossLineObject());
    QVERIFY(band.GetFVBLineObject());
}

void TestFocusInfo::TheObjectsAreConnectedByTheirSpelling_data()
{
    QTest::addColumn<bool>("cross");
    QTest::addColumn<QByteArray>("signature");
    for (const char *slot :
         { "SlotImageSizeChanged()", "SlotCrossLineVisiable(bool)", "SlotCrossLineEnable(bool)" })
        QTest::newRow(slot) << true << QByteArray(slot);
    for (const char *member : {"SignalTopBottomChanged(int, int)", "SetFVBArea(QPointF, QPointF)",
                               "SlotFVBManualFlagChanged(bool)", "SlotFVBSpeedingFlagChanged(bool)"})
        QTest::newRow(member) << false << QByteArray(member);
}

void TestFocusInfo::TheObjectsAreConnectedByTheirSpelling()
{
    QFETCH(bool, cross);
    QFETCH(QByteArray, signature);
    FocusInfo info(m_scene.get(), cross ? FocusAssistanceInfo : FVBAndMultiTrackInfo);
    const QMetaObject *line = Line(info)->metaObject();
    QVERIFY(line->indexOfMethod(QMetaObject::normalizedSignature(signature)) >= 0);
}

void TestFocusInfo::DrawsOneMarkPerSpectralLine()
{
    FocusInfo info(m_scene.get(), FocusAssistanceInfo);
    info.AddFocusInfo({QRect(10, 20, 30, 200), QRect(100, 20, 30, 200)}, {QPoint(12, 22), QPoint(102, 22)},
                      {1.5F, 2.25F}, {0.0F, -1.125F});
    QCOMPARE(Rectangles(*m_scene), QVector<QRectF>({QRectF(10, 20, 30, 200), QRectF(100, 20, 30, 200)}));
    const auto lines = ItemsOf<QGraphicsLineItem>(*m_scene);
    QCOMPARE(lines.size(), 2);
    QCOMPARE(lines.at(0)->line().center(), QPointF(25, 120));
    QCOMPARE(lines.at(0)->line().dx(), 0.0); // upright
    QCOMPARE(lines.at(0)->line().length(), 200.0);
    // A negative angle leans to the left on its way down.
    QVERIFY(lines.at(1)->line().dx() < 0.0);
    QCOMPARE(qRound(lines.at(1)->line().dx() * 1000), qRound(-200 * 0.0196336 * 1000)); // sin 1.125 degrees
    const auto texts = ItemsOf<QGraphicsSimpleTextItem>(*m_scene);
    QCOMPARE(texts.size(), 2);
    QCOMPARE(texts.at(0)->pos(), QPointF(12, 22));
    QCOMPARE(texts.at(0)->text(), QString::fromUtf8("1.50  0.00°"));
    QVERIFY(texts.at(1)->text().startsWith("2.25  -1.1"));
}

void TestFocusInfo::LevelLinesAreAsLongAsTheirRectangleIsWide()
{
    FocusInfo info(m_scene.get(), FocusAssistanceInfo);
    info.AddFocusInfo({QRect(20, 10, 200, 30)}, {QPoint(22, 12)}, {1.5F}, {90.0F});
    const QLineF line = ItemsOf<QGraphicsLineItem>(*m_scene).first()->line();
    QCOMPARE(line.center(), QPointF(120, 25));
    QCOMPARE(line.length(), 200.0);
    QVERIFY(qAbs(line.dy()) < 1e-9);
}

void TestFocusInfo::ShorterListsLeaveMarksOut()
{
    FocusInfo info(m_scene.get(), FocusAssistanceInfo);
    info.AddFocusInfo({ QRect(10, 20, 30, 200), QRect(100, 20, 30, 200) }, { QPoint(12, 22) }, { 1.5F, 2.0F },
                      { 0.0F, 1.0F });
    QCOMPARE(Rectangles(*m_scene).size(), 1);
    info.AddFocusInfo({}, {QPoint(12, 22)}, {1.5F}, {0.0F});
    QCOMPARE(Rectangles(*m_scene).size(), 0);
}

void TestFocusInfo::NewMarksReplaceTheOldOnes()
{
    FocusInfo info(m_scene.get(), FocusAssistanceInfo);
    info.AddFocusInfo({QRect(10, 20, 30, 200)}, {QPoint(12, 22)}, {1.5F}, {0.0F});
    info.AddFocusInfo({QRect(50, 20, 30, 200)}, {QPoint(52, 22)}, {1.5F}, {0.0F});
    QCOMPARE(Rectangles(*m_scene), QVector<QRectF>({QRectF(50, 20, 30, 200)}));
}

void TestFocusInfo::ShowModeChoosesTheMarks_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("rectangles");
    QTest::addColumn<int>("lines");
    QTest::newRow("all") << 0 << 1 << 1;
    QTest::newRow("rectangles") << 1 << 1 << 0;
    QTest::newRow("lines") << 2 << 0 << 1;
}

void TestFocusInfo::ShowModeChoosesTheMarks()
{
    QFETCH(int, mode);
    QFETCH(int, rectangles);
    QFETCH(int, lines);
    FocusInfo info(m_scene.get(), FocusAssistanceInfo);
    info.SetShowMode(mode);
    info.AddFocusInfo({QRect(10, 20, 30, 200)}, {QPoint(12, 22)}, {1.5F}, {0.0F});
    QCOMPARE(Rectangles(*m_scene).size(), rectangles);
    QCOMPARE(ItemsOf<QGraphicsLineItem>(*m_scene).size(), lines);
    QCOMPARE(ItemsOf<QGraphicsSimpleTextItem>(*m_scene).size(), 1);
}

int TestFocusInfo::TextRows() const
{
    const QImage seen = m_view->grab().toImage();
    int rows = 0;
    for (int y = 0; y < seen.height(); ++y) {
        bool hasText = false;
        for (int x = 0; x < seen.width(); ++x) {
            const QColor colour = seen.pixelColor(x, y);
            hasText = hasText || (colour.green() > 100 && colour.blue() < 100); // yellow; the lines are red
        }
        rows += hasText;
    }
    return rows;
}

void TestFocusInfo::TextsOfCloseLinesStandBelowEachOther()
{
    FocusInfo info(m_scene.get(), FocusAssistanceInfo);
    info.AddCrossLine(false);
    info.SetShowMode(2); // lines, whose colour is another
    const QRect line(0, 200, 10, 50);
    info.AddFocusInfo({line}, {QPoint(12, 22)}, {1.5F}, {0.0F});
    const int one = TextRows();
    QVERIFY(one > 4);
    info.AddFocusInfo({line, line, line, line}, {QPoint(12, 22), QPoint(22, 22), QPoint(32, 24), QPoint(300, 22)},
                      {1.5F, 1.5F, 1.5F, 1.5F}, {0.0F, 0.0F, 0.0F, 0.0F});
    QCOMPARE(TextRows(), 3 * one); // the fourth stands where there is room
    m_view->scale(10, 1);
    m_view->centerOn(16, 150);
    QCOMPARE(TextRows(), one + 2); // at their lines, the third two rows lower
}

void TestFocusInfo::LinesChosenByHandAreDashed()
{
    FocusInfo info(m_scene.get(), FocusAssistanceInfo);
    info.SetSpectrumLineManualSelection(true);
    info.AddFocusInfo({QRect(10, 20, 30, 200)}, {QPoint(12, 22)}, {1.5F}, {0.0F});
    QCOMPARE(ItemsOf<QGraphicsRectItem>(*m_scene).first()->pen().style(), Qt::DashLine);
    info.SetSpectrumLineManualSelection(false);
    info.AddFocusInfo({QRect(10, 20, 30, 200)}, {QPoint(12, 22)}, {1.5F}, {0.0F});
    QCOMPARE(ItemsOf<QGraphicsRectItem>(*m_scene).first()->pen().style(), Qt::SolidLine);
}

void TestFocusInfo::TracksAreRectanglesWithNumbers()
{
    FocusInfo info(m_scene.get(), FVBAndMultiTrackInfo);
    info.AddMultiTrackInfo({QRectF(0, 10, 400, 20), QRectF(1, 60, 399, 5.5)});
    QCOMPARE(Rectangles(*m_scene), QVector<QRectF>({QRectF(0, 10, 400, 20), QRectF(1, 60, 399, 5.5)}));
    QStringList numbers;
    for (const QGraphicsSimpleTextItem *item : ItemsOf<QGraphicsSimpleTextItem>(*m_scene))
        numbers << item->text();
    numbers.sort();
    QCOMPARE(numbers, QStringList({"1", "2"}));
    info.AddMultiTrackInfo({});
    QVERIFY(Rectangles(*m_scene).isEmpty());
}

/// As narrow as they are, and lower than a text is high.
void TestFocusInfo::NumbersOfManyTracksStayAtThem()
{
    FocusInfo info(m_scene.get(), FVBAndMultiTrackInfo);
    QList<QRectF> tracks;
    for (int i = 0; i < 100; ++i)
        tracks << QRectF(0, 3 * i, 400, 2);
    info.AddMultiTrackInfo(tracks);
    const auto numbers = ItemsOf<QGraphicsSimpleTextItem>(*m_scene);
    QCOMPARE(numbers.size(), tracks.size());
    for (const QGraphicsSimpleTextItem *item : numbers) {
        QCOMPARE(item->scenePos(), tracks.at(item->text().toInt() - 1).topLeft());
        const QRectF seen = item->sceneBoundingRect();
        QVERIFY2(seen.height() < 40, qPrintable(item->text())); // it has no other place to move to
    }
}

void TestFocusInfo::ClearingTakesTheMarksOut()
{
    FocusInfo info(m_scene.get(), FocusAssistanceInfo);
    info.AddFocusInfo({QRect(10, 20, 30, 200)}, {QPoint(12, 22)}, {1.5F}, {0.0F});
    info.ClearFocusInfo();
    QVERIFY(Rectangles(*m_scene).isEmpty());
    QVERIFY(Line(info)->isVisible()); // the cross line stays
    info.ClearFocusInfo();

    info.AddFocusInfo({QRect(10, 20, 30, 200)}, {QPoint(12, 22)}, {1.5F}, {0.0F});
    info.Clear();
    QVERIFY(Rectangles(*m_scene).isEmpty());
    QVERIFY(!Line(info)->isVisible());
}

void TestFocusInfo::TheCrossLineFollowsItsSlots()
{
    FocusInfo info(m_scene.get(), FocusAssistanceInfo);
    QGraphicsObject *cross = Line(info);
    QVERIFY(cross->isVisible());
    QMetaObject::invokeMethod(cross, "SlotCrossLineVisiable", Q_ARG(bool, false));
    QVERIFY(!cross->isVisible());
    QMetaObject::invokeMethod(cross, "SlotCrossLineVisiable", Q_ARG(bool, true));
    QVERIFY(cross->isVisible());
    QMetaObject::invokeMethod(cross, "SlotCrossLineEnable", Q_ARG(bool, false));
    QVERIFY(!cross->isVisible());
    info.AddCrossLine(true);
    QVERIFY(!cross->isVisible()); // still not enabled
    QMetaObject::invokeMethod(cross, "SlotCrossLineEnable", Q_ARG(bool, true));
    info.AddCrossLine(false);
    QVERIFY(!cross->isVisible());
}

void TestFocusInfo::TheCrossLineCoversThePicture()
{
    FocusInfo info(m_scene.get(), FocusAssistanceInfo);
    QGraphicsObject *cross = Line(info);
    QCOMPARE(cross->sceneBoundingRect(), QRectF(0, 0, 400, 300));
    const QImage picture = m_view->grab().toImage();
    const QColor green(Qt::green);
    QVERIFY(picture.pixelColor(50, 150) == green || picture.pixelColor(50, 149) == green);
    QVERIFY(picture.pixelColor(200, 50) == green || picture.pixelColor(199, 50) == green);
    QCOMPARE(picture.pixelColor(50, 50), QColor(Qt::black));

    m_scene->setSceneRect(0, 0, 200, 100);
    QCOMPARE(cross->sceneBoundingRect(), QRectF(0, 0, 200, 100));
}

void TestFocusInfo::ARetiredCrossLineStaysAway()
{
    FocusInfo info(m_scene.get(), FocusAssistanceInfo);
    QGraphicsObject *cross = Line(info);
    info.Clear();
    QMetaObject::invokeMethod(cross, "SlotCrossLineEnable", Q_ARG(bool, true));
    QMetaObject::invokeMethod(cross, "SlotCrossLineVisiable", Q_ARG(bool, true));
    QVERIFY(!cross->isVisible());
    info.AddCrossLine(true);
    QVERIFY(cross->isVisible());
}

void TestFocusInfo::GoesWithItsScene()
{
    auto scene = std::make_unique<QGraphicsScene>(QRectF(0, 0, 10, 10));
    QPointer<FocusInfo> info = new FocusInfo(scene.get(), FVBAndMultiTrackInfo); // owned by the scene
    info->AddMultiTrackInfo({QRectF(0, 1, 10, 2)});
    scene->clear(); // takes the items away under it
    QVERIFY(!info->GetFVBLineObject());
    info->AddFVBInfo({QPointF(0, 1), QPointF(0, 2)}, true);
    info->Clear();
    scene.reset();
    QVERIFY(!info);
}

void TestFocusInfo::TakesItsMarksAlong()
{
    {
        FocusInfo info(m_scene.get(), FVBAndMultiTrackInfo);
        info.AddFVBInfo({QPointF(0, 100), QPointF(0, 200)}, true);
        info.AddMultiTrackInfo({QRectF(0, 10, 400, 20)});
        QVERIFY(!m_scene->items().isEmpty());
    }
    QVERIFY(m_scene->items().isEmpty());
}

GUARDED_TEST_MAIN(TestFocusInfo)
#include "tst_focusinfo.moc"
