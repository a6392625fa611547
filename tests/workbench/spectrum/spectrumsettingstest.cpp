// SPDX-License-Identifier: GPL-3.0-or-later
#include "settingsfixture.h"
#include "viewcodes.h"

#include <QSignalSpy>

/// What is set of spectra, and who is told.
class SpectrumSettingsTest : public SettingsFixture
{
    Q_OBJECT

private slots:
    void binningAndTracksTakeTurns();
    void rowsOfTheBandAreKept();
    void aBandOutsideOfThePictureIsTold_data();
    void aBandOutsideOfThePictureIsTold();
    void tracksThatCannotBeAreRefusedInWords();
    void moreThanTwentyTracksAreForThePlotAlongTheRows();
    void moreThanTwentyTracksAcrossAreForTheOtherPages();
    void aSmallerFrameSwitchesTracksOff();
    void tracksThatLieOnOtherRowsAreTold_data();
    void tracksThatLieOnOtherRowsAreTold();
    void tracksAreAsWideAsTheFrame();
    void whatAFileSaysOfItsAreaIsChecked_data();
    void whatAFileSaysOfItsAreaIsChecked();
    void anOpenedFileLeavesTheDirectionOfTheCamera();
    void styleReachesThePlots();
};

void SpectrumSettingsTest::binningAndTracksTakeTurns()
{
    QSignalSpy changed(m_settings.get(), &SpectrumSettings::signalRecipeChanged);
    QSignalSpy on(m_settings.get(), &SpectrumUIManager::SignalFVBOnFlagChanged);
    QSignalSpy closed(m_settings.get(), &SpectrumUIManager::SignalFVBClose);
    QSignalSpy tracks(m_settings.get(), &SpectrumUIManager::SignalMultiTrackOnFlagChanged);
    m_settings->SetFVBOnFlag(1);
    m_settings->SetFVBOnFlag(1);
    QCOMPARE(on.count(), 1);
    QCOMPARE(changed.count(), 1);
    QVERIFY(m_settings->SetTracks({QRectF(0, 10, 1000, 20)}));
    m_settings->SetMultiTrackOnFlag(true);
    QCOMPARE(m_settings->GetFVBOnFlag(), 0);
    QCOMPARE(closed.count(), 1);
    QCOMPARE(tracks.count(), 1);
    m_settings->SetFVBOnFlag(1);
    QVERIFY(!m_settings->GetMultiTrackOnFlag());
    QVERIFY(m_settings->Recipe().isBinning && !m_settings->Recipe().hasTracks);
}

void SpectrumSettingsTest::rowsOfTheBandAreKept()
{
    QSignalSpy manual(m_settings.get(), &SpectrumUIManager::SignalFVBManualFlagChanged);
    QSignalSpy all(m_settings.get(), &SpectrumUIManager::SignalFVBModeAll);
    m_settings->SetBinnedRows(BinnedRows::Manual);
    QVERIFY(m_settings->GetManualFlag() && !m_settings->IsFVBModeAll() && !m_settings->IsFVBModeAuto());
    QCOMPARE(m_settings->GetTop(), 0);
    QCOMPARE(m_settings->GetBottom(), 499);
    QSignalSpy band(m_settings.get(), &SpectrumUIManager::SignalTopBottomChanged);
    m_settings->SetTop(100);
    QCOMPARE(band.value(band.count() - 1), QVariantList({QPointF(0, 100), QPointF(0, 499)}));
    m_settings->SetBottom(120);
    QCOMPARE(band.value(band.count() - 1), QVariantList({QPointF(0, 100), QPointF(0, 120)}));
    m_settings->SetBottom(120);
    QCOMPARE(band.count(), 2);
    QCOMPARE(m_settings->Recipe().top, 100);
    QCOMPARE(m_settings->Recipe().bottom, 120);
    m_settings->SetBinnedRows(BinnedRows::Auto);
    QVERIFY(m_settings->IsFVBModeAuto());
    m_settings->SetBinnedRows(BinnedRows::All);
    QCOMPARE(all.count(), 1);
    QCOMPARE(manual.count(), 2);
}

void SpectrumSettingsTest::aBandOutsideOfThePictureIsTold_data()
{
    QTest::addColumn<int>("top");
    QTest::addColumn<int>("bottom");
    QTest::addColumn<int>("keptTop");
    QTest::addColumn<QString>("text");
    QTest::newRow("outside") << 300 << 340 << 0
                             << "The band set by hand lay outside of the picture, which has 200 lines now: all of them are binned. "
                                "Set the band again.";
    QTest::newRow("beyond") << 150 << 240 << 150
                            << "The band set by hand went beyond the picture, which has 200 lines now, and was cut.";
}

void SpectrumSettingsTest::aBandOutsideOfThePictureIsTold()
{
    QFETCH(int, top);
    QFETCH(int, bottom);
    QFETCH(int, keptTop);
    QFETCH(QString, text);
    m_settings->SetBinnedRows(BinnedRows::Manual);
    m_settings->SetFVBOnFlag(1);
    m_settings->SetTop(top);
    m_settings->SetBottom(bottom);
    QSignalSpy told(m_settings.get(), &SpectrumSettings::signalMessage);
    QSignalSpy line(m_settings.get(), &SpectrumUIManager::SignalTopBottomChanged);
    QSignalSpy changed(m_settings.get(), &SpectrumSettings::signalRecipeChanged);
    m_settings->slotSetFrameSize(QSize(1000, 400));
    QCOMPARE(told.count(), 0);
    m_settings->slotSetFrameSize(QSize(1000, 200));
    QCOMPARE(told.value(0).value(0).toString(), text);
    QCOMPARE(line.count(), 1);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(m_settings->GetTop(), keptTop);
    QCOMPARE(m_settings->GetBottom(), 199);
}

void SpectrumSettingsTest::tracksThatCannotBeAreRefusedInWords()
{
    QSignalSpy told(m_settings.get(), &SpectrumSettings::signalMessage);
    m_settings->SetMultiTrackOnFlag(true);
    QVERIFY(!m_settings->GetMultiTrackOnFlag());
    QVERIFY(!m_settings->SetTracks({QRectF(0, 490, 1000, 20)}));
    QVERIFY(!m_settings->SetTracks({QRectF(0, 10, 1000, 20), QRectF(0, 20, 1000, 20)}));
    QCOMPARE(told.count(), 3);
    QVERIFY(told[0][0].toString().startsWith("There are no tracks"));
    QVERIFY(told[1][0].toString().contains("outside the sensor of 500 rows"));
    QVERIFY(told[2][0].toString().contains("overlap"));
    QVERIFY(m_settings->GetMultiTrackList().isEmpty());
}

void SpectrumSettingsTest::moreThanTwentyTracksAreForThePlotAlongTheRows()
{
    QList<QRectF> tracks;
    for (int i = 0; i < 21; ++i)
        tracks << QRectF(0, 20 * i, 1000, 10);
    m_settings->SetMode(DisplayMode::Plot);
    QVERIFY(m_settings->SetTracks(tracks));
    m_settings->SetMultiTrackOnFlag(true);
    QSignalSpy told(m_settings.get(), &SpectrumSettings::signalMessage);
    m_settings->SetHorizontal(false);
    QVERIFY(m_settings->IsDirectionHorinzontal());
    QCOMPARE(told.value(0).value(0).toString(), QString("There are 21 tracks and the plot shows 20 at most: take some away."));
    tracks.removeLast();
    QVERIFY(m_settings->SetTracks(tracks));
    m_settings->SetHorizontal(false);
    QVERIFY(!m_settings->IsDirectionHorinzontal());
}

/// The other pages show them all; the plot then shows the first ones and says so.
void SpectrumSettingsTest::moreThanTwentyTracksAcrossAreForTheOtherPages()
{
    QList<QRectF> tracks;
    for (int i = 0; i < 21; ++i)
        tracks << QRectF(0, 20 * i, 1000, 10);
    m_settings->SetMode(DisplayMode::Tracks3D);
    m_settings->SetHorizontal(false);
    QSignalSpy told(m_settings.get(), &SpectrumSettings::signalMessage);
    QVERIFY(m_settings->SetTracks(tracks));
    m_settings->SetMultiTrackOnFlag(true);
    QCOMPARE(m_settings->GetMultiTrackList().size(), 21);
    QCOMPARE(told.count(), 0);
    m_settings->SetMode(DisplayMode::Plot);
    QCOMPARE(told.value(0).value(0).toString(), QString("There are 21 tracks and the plot shows 20 at most: take some away."));
    QVERIFY(!m_settings->SetTracks(tracks));
    QCOMPARE(m_settings->GetMultiTrackList().size(), 21);
}

void SpectrumSettingsTest::aSmallerFrameSwitchesTracksOff()
{
    QVERIFY(m_settings->SetTracks({QRectF(0, 300, 1000, 20)}));
    m_settings->SetMultiTrackOnFlag(true);
    QSignalSpy told(m_settings.get(), &SpectrumSettings::signalMessage);
    m_settings->slotSetFrameSize(QSize(1000, 200));
    QVERIFY(!m_settings->GetMultiTrackOnFlag());
    QVERIFY(m_settings->GetMultiTrackList().isEmpty());
    QCOMPARE(told.count(), 1);
}

void SpectrumSettingsTest::tracksThatLieOnOtherRowsAreTold_data()
{
    QTest::addColumn<QRect>("region");
    QTest::addColumn<bool>("isUpsideDown");
    QTest::addColumn<bool>("isTold");
    QTest::newRow("the same") << QRect(100, 200, 1000, 500) << false << false;
    QTest::newRow("other columns") << QRect(300, 200, 1000, 500) << false << false;
    QTest::newRow("other rows") << QRect(100, 300, 1000, 500) << false << true;
    QTest::newRow("upside down") << QRect(100, 200, 1000, 500) << true << true;
}

/// They count the rows of the picture, and fit it as before.
void SpectrumSettingsTest::tracksThatLieOnOtherRowsAreTold()
{
    QFETCH(QRect, region);
    QFETCH(bool, isUpsideDown);
    QFETCH(bool, isTold);
    QVERIFY(m_settings->SetTracks({QRectF(0, 10, 1000, 20)}));
    QSignalSpy told(m_settings.get(), &SpectrumSettings::signalMessage);
    m_settings->SetSensorFrame({QRect(100, 200, 1000, 500), 1, Orientation()});
    QCOMPARE(told.count(), 0); // the first picture
    m_settings->SetSensorFrame({region, 1, isUpsideDown ? Orientation().After(FlipVertical) : Orientation()});
    QCOMPARE(told.count(), isTold ? 1 : 0);
    if (isTold)
        QVERIFY(told[0][0].toString().startsWith("The picture shows other rows of the sensor now"));
    QCOMPARE(m_settings->GetMultiTrackList(), QList<QRectF>({QRectF(0, 10, 1000, 20)}));
}

void SpectrumSettingsTest::tracksAreAsWideAsTheFrame()
{
    QVERIFY(m_settings->SetTracks({QRectF(100, 10, 50, 20)}));
    QCOMPARE(m_settings->GetMultiTrackList(), QList<QRectF>({QRectF(0, 10, 1000, 20)}));
    m_settings->slotSetFrameSize(QSize(800, 500));
    QCOMPARE(m_settings->GetMultiTrackList(), QList<QRectF>({QRectF(0, 10, 800, 20)}));
}

void SpectrumSettingsTest::whatAFileSaysOfItsAreaIsChecked_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("valid");
    QTest::newRow("area") << "500.1;620" << true;
    QTest::newRow("falling") << "620;-500" << true;
    QTest::newRow("nothing") << "" << false;
    QTest::newRow("one number") << "500" << false;
    QTest::newRow("a point") << "500;500" << false;
    QTest::newRow("words") << "left;right" << false;
}

void SpectrumSettingsTest::whatAFileSaysOfItsAreaIsChecked()
{
    QFETCH(QString, text);
    QFETCH(bool, valid);
    QCOMPARE(m_settings->IsValidConversation(&text), valid);
    QVERIFY(!m_settings->IsValidConversation(nullptr));
}

void SpectrumSettingsTest::anOpenedFileLeavesTheDirectionOfTheCamera()
{
    m_settings->SetHorizontal(false);
    m_settings->SetBinnedRows(BinnedRows::Manual);
    m_settings->SetFVBOnFlag(1);
    m_settings->SetTop(580);
    m_settings->SetBottom(600); // columns: there are not that many rows
    m_settings->slotSetImageShown(true);
    QVERIFY(!m_settings->IsDirectionHorinzontal()); // of a picture as that of the camera
    QSignalSpy told(m_settings.get(), &SpectrumSettings::signalMessage);
    QSignalSpy changed(m_settings.get(), &SpectrumSettings::signalRecipeChanged);
    m_settings->SetDirectionHorizontal(); // which a spectrum file begins with
    QVERIFY(m_settings->IsDirectionHorinzontal());
    QCOMPARE(changed.count(), 1);
    QVERIFY(!m_settings->Recipe().isHorizontal);
    QCOMPARE(m_settings->GetTop(), 580);
    QCOMPARE(m_settings->GetBottom(), 600);
    m_settings->slotSetImageShown(false);
    QVERIFY(!m_settings->IsDirectionHorinzontal());
    QCOMPARE(changed.count(), 2);
    QVERIFY(told.isEmpty());

    m_settings->slotSetImageShown(true);
    QVERIFY(m_settings->IsDirectionHorinzontal());
    m_settings->SetHorizontal(false);
    QVERIFY(!m_settings->IsDirectionHorinzontal());
    m_settings->slotSetImageShown(false);
    m_settings->SetHorizontal(true);
    m_settings->slotSetImageShown(true);
    QVERIFY(!m_settings->IsDirectionHorinzontal());
}

void SpectrumSettingsTest::styleReachesThePlots()
{
    QSignalSpy told(m_settings.get(), &SpectrumUIManager::SignalSpectralPropertyChanged);
    PlotStyle style;
    style.line = QPen(Qt::green, 2, Qt::DashLine);
    style.peakNumber = 7;
    style.blankRatio = 0.3;
    m_settings->SetStyle(style);
    QCOMPARE(told.count(), 1);
    QCOMPARE(m_settings->GetLineColor(), QColor(Qt::green));
    QCOMPARE(m_settings->GetLineWidth(), 2.0);
    QCOMPARE(m_settings->GetLineStyle() + 1, int(Qt::DashLine));
    QCOMPARE(m_settings->GetPeakNumber(), 7);
    QCOMPARE(m_settings->GetBlankRatio(), 0.3);
}

GUARDED_TEST_MAIN(SpectrumSettingsTest)
#include "spectrumsettingstest.moc"
