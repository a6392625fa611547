// SPDX-License-Identifier: GPL-3.0-or-later
#include "openedprofiles.h"
#include "guardedtest.h"
#include "picturebench.h"

#include <cmath>

/// The curves that an opened picture gives the pages, as they come from the picture itself.
class OpenedProfilesTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void curvesGoThroughThePickedPoint()
    {
        PictureBench bench;
        QVector<std::vector<int>> rows;
        QVector<std::vector<int>> columns;
        connect(&bench.main, &ImageManager::sglUpdateHorizontalCurve, &bench.main,
                [&](int *data, int size, int offset, int count) {
                    QVERIFY(size == 6 && offset + count <= size);
                    rows << std::vector<int>(data + offset, data + offset + count);
                });
        connect(&bench.main, &ImageManager::sglUpdateVerticalCurve, &bench.main,
                [&](int *data, int size, int offset, int count) {
                    QVERIFY(size == 4 && offset + count <= size);
                    columns << std::vector<int>(data + offset, data + offset + count);
                });
        bench.main.GetIntensityCurveHistogramData(QPointF(1, 1), QRectF(0, 0, 1, 1), 0);
        QVERIFY(rows.isEmpty()); // nothing is open
        bench.main.Profiles()->slotSetLines(1);

        QVERIFY(bench.Open("stack.tif", QSize(6, 4), 2));
        rows.clear();
        bench.main.GetIntensityCurveHistogramData(QPointF(2.5, 1.5), QRectF(0, 0, 1, 1), 0);
        QCOMPARE(rows.last(), std::vector<int>({20, 21, 22, 23, 24, 25}));
        QCOMPARE(columns.last(), std::vector<int>({2, 22, 42, 62}));
        bench.main.GetIntensityCurveHistogramData(QPointF(2.5, 1.5), QRectF(0.5, 0.25, 1, 0.75), 0);
        QCOMPARE(rows.last(), std::vector<int>({23, 24, 25}));
        QCOMPARE(columns.last(), std::vector<int>({22, 42}));

        bench.main.SetImage(1); // another frame, the same point
        QTRY_COMPARE(rows.last(), std::vector<int>({1023, 1024, 1025}));
        bench.main.Profiles()->slotSetLines(3); // rows 0 to 2
        QCOMPARE(rows.last(), std::vector<int>({1023, 1024, 1025}));

        const int count = rows.size();
        bench.main.GetIntensityCurveHistogramData(QPointF(std::nan(""), 0), QRectF(0, 0, 1, 1), 0);
        QCOMPARE(rows.last(), std::vector<int>({1023, 1024, 1025})); // still the point before
        bench.main.CloseImage();
        bench.main.Profiles()->slotSetLines(1);
        QCOMPARE(rows.size(), count + 1);
    }

    /// As the page keeps its zoom and its cross for a picture of the same size, and is fitted anew to another.
    void curvesStayWithWhatThePageShows()
    {
        PictureBench bench;
        QVector<std::vector<int>> rows;
        QVector<std::vector<int>> columns;
        connect(&bench.main, &ImageManager::sglUpdateHorizontalCurve, &bench.main,
                [&](int *data, int, int offset, int count) {
                    rows << std::vector<int>(data + offset, data + offset + count);
                });
        connect(&bench.main, &ImageManager::sglUpdateVerticalCurve, &bench.main,
                [&](int *data, int, int offset, int count) {
                    columns << std::vector<int>(data + offset, data + offset + count);
                });
        const QString asked = "SpectrumUIManager::UpdateDisplayModeProperty()";
        CallLog::Clear();
        QVERIFY(bench.Open("first.tif", QSize(6, 4)));
        // Without a page through the middle.
        QCOMPARE(rows.last(), std::vector<int>({ 40, 41, 42, 43, 44, 45 }));
        QCOMPARE(columns.last(), std::vector<int>({ 3, 23, 43, 63 }));
        QCOMPARE(CallLog::Calls().count(asked), 1);

        bench.main.GetIntensityCurveHistogramData(QPointF(1.5, 1.5), QRectF(0, 0.25, 0.5, 0.75), 0);
        CallLog::Clear();
        QVERIFY(bench.Open("second.tif", QSize(6, 4), 2));
        QCOMPARE(rows.last(), std::vector<int>({ 20, 21, 22 }));
        QCOMPARE(columns.last(), std::vector<int>({ 21, 41 }));
        bench.main.SetImage(1);
        QTRY_COMPARE(rows.last(), std::vector<int>({ 1020, 1021, 1022 }));
        QCOMPARE(CallLog::Calls().count(asked), 0);

        QVERIFY(bench.Open("third.tif", QSize(8, 2)));
        QCOMPARE(rows.last(), std::vector<int>({ 20, 21, 22, 23, 24, 25, 26, 27 }));
        QCOMPARE(columns.last(), std::vector<int>({ 4, 24 }));
        QCOMPARE(CallLog::Calls().count(asked), 1);
        bench.main.GetIntensityCurveHistogramData(QPointF(1.5, 0.5), QRectF(0, 0, 0.5, 1), 0);
        bench.main.slotCrop(0, 0, 4, 2, true); // a part of it is another size too
        QTRY_COMPARE(rows.last(), std::vector<int>({ 20, 21, 22, 23 }));
        QCOMPARE(columns.last(), std::vector<int>({ 2, 22 }));

        bench.main.CloseImage();
        QVERIFY(bench.Open("fourth.tif", QSize(4, 2)));
        QCOMPARE(rows.last(), std::vector<int>({ 20, 21, 22, 23 }));
    }
};

GUARDED_TEST_MAIN(OpenedProfilesTest)
#include "openedprofilestest.moc"
