// SPDX-License-Identifier: GPL-3.0-or-later
#include "centredisplay.h"
#include "guardedtest.h"
#include "ledgerline.h"
#include "spectrumfields.h"
#include "spectrumpipeline.h"
#include "spectrumranges.h"
#include "spectrumsettings.h"
#include "trackdesk.h"

#include <QMutex>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <memory>

namespace {

constexpr int Width = 200;
constexpr int Height = 40;

/// All samples `value`.
CameraFrame Frame(quint64 id, quint16 value)
{
    auto samples = std::make_shared<std::vector<quint16>>(size_t(Width) * Height, value);
    CameraFrame frame;
    frame.pixels = std::shared_ptr<const uchar>(samples, reinterpret_cast<const uchar *>(samples->data()));
    frame.width = Width;
    frame.height = Height;
    frame.strideBytes = 2 * Width;
    frame.layout = PixelLayout::Mono16;
    frame.frameId = id;
    return frame;
}

} // namespace

/// How the panel "Spectrum" sets what is made of every frame and how it is shown.
class SpectrumFieldsTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void init() override
    {
        StartGuard();
        m_stored = std::make_unique<QSettings>(m_folder.filePath("settings.ini"), QSettings::IniFormat);
        m_stored->clear();
        m_centre = std::make_unique<CentreDisplay>(m_stored.get());
        m_settings = std::make_unique<SpectrumSettings>(&m_ranges, m_centre.get());
        m_settings->slotSetFrameSize(QSize(Width, Height));
        m_spectra = std::make_unique<SpectrumPipeline>([this] {
            const QMutexLocker lock(&m_gate);
            return Orientation();
        });
        connect(m_settings.get(), &SpectrumSettings::signalRecipeChanged, m_spectra.get(),
                [this] { m_spectra->SetRecipe(m_settings->Recipe()); });
        m_tracks = std::make_unique<TrackDesk>(m_settings.get());
        m_tracks->slotPictureSize(QSize(Width, Height));
        m_fields = std::make_unique<SpectrumFields>(m_settings.get(), m_spectra.get(), m_tracks.get());
    }

    void cleanup() override
    {
        m_fields.reset();
        m_tracks.reset();
        m_spectra.reset();
        m_settings.reset();
        m_centre.reset();
        m_stored.reset();
        EndGuard();
    }

    void displayIsSet()
    {
        m_fields->Set("mode", int(DisplayMode::PlotPeak));
        QVERIFY(m_settings->Mode() == DisplayMode::PlotPeak);
        m_fields->Set("mode", 99);
        QVERIFY(m_settings->Mode() == DisplayMode::Tracks3D);
        m_fields->Set("direction", 1);
        QVERIFY(!m_settings->IsDirectionHorinzontal());
        m_fields->Set("unit", int(SpectralUnit::Wavenumber));
        QVERIFY(m_settings->Unit() == SpectralUnit::Wavenumber);
        QCOMPARE(Field("mode").value.toInt(), int(DisplayMode::Tracks3D));
        QCOMPARE(Field("direction").value.toInt(), 1);
        QCOMPARE(Field("unit").value.toInt(), int(SpectralUnit::Wavenumber));
    }

    void changesFromElsewhereAreShown()
    {
        QSignalSpy changes(m_fields.get(), SIGNAL(signalChanged()));
        m_settings->SetMode(DisplayMode::Plot);
        QVERIFY(changes.count() > 0);
        QCOMPARE(Field("mode").value.toInt(), int(DisplayMode::Plot));
        changes.clear();
        m_settings->SetFVBOnFlag(1);
        QVERIFY(changes.count() > 0);
        QCOMPARE(Field("binning").value.toInt(), 1);
    }

    void rowsAreBinned()
    {
        QVERIFY(!Field("top").isEnabled);
        m_fields->Set("binning", 3);
        QVERIFY(m_settings->GetFVBOnFlag() && m_settings->GetManualFlag());
        QCOMPARE(m_settings->GetBottom(), Height - 1);
        QVERIFY(Field("top").isEnabled);
        m_fields->Set("top", 12);
        m_fields->Set("bottom", 20);
        QCOMPARE(m_settings->GetTop(), 12);
        QCOMPARE(m_settings->GetBottom(), 20);
        m_fields->Set("top", 33); // not below the last one
        QCOMPARE(m_settings->GetTop(), 20);
        m_fields->Set("binning", 2);
        QVERIFY(m_settings->IsFVBModeAuto());
        QVERIFY(Field("findBand").isEnabled);
        m_fields->Set("binning", 0);
        QCOMPARE(m_settings->GetFVBOnFlag(), 0);
        QVERIFY(!Field("findBand").isEnabled);
    }

    void columnsAreBinnedOfASpectrumAlongThem()
    {
        m_fields->Set("binning", 3);
        QCOMPARE(Field("bottom").maximum, double(Height - 1));
        QCOMPARE(Field("binning").text, QString("Rows"));
        QCOMPARE(Field("binning").choices.value(1), QString("all rows"));
        QCOMPARE(Field("top").text, QString("First row"));
        QCOMPARE(Field("bottom").text, QString("Last row"));

        m_fields->Set("direction", 1);
        QCOMPARE(Field("binning").text, QString("Columns"));
        QCOMPARE(Field("binning").choices.value(1), QString("all columns"));
        QCOMPARE(Field("top").text, QString("First column"));
        QCOMPARE(Field("bottom").text, QString("Last column"));
        m_fields->Set("bottom", 30);
        for (const char *key : {"top", "bottom"})
            QCOMPARE(Field(key).maximum, double(Width - 1));
        m_fields->Set("bottom", 180);
        QCOMPARE(m_settings->GetBottom(), 180);

        m_settings->slotSetFrameSize(QSize(100, Height));
        QSignalSpy changes(m_fields.get(), SIGNAL(signalChanged()));
        m_spectra->OnFrame(Frame(1, 50));
        QVERIFY(changes.wait());
        QCOMPARE(Field("bottom").maximum, 99.0);

        // Tracks stay rows.
        m_fields->Set("addTrack", QVariant());
        QTRY_COMPARE(Field("trackBottom").maximum, double(Height - 1));
        QCOMPARE(Field("trackTop").text, QString("Its first row"));
    }

    void tracksThatAreNotThereAreRefusedInWords()
    {
        QVERIFY(!Field("showTracks").isEnabled);
        QSignalSpy faults(m_fields.get(), SIGNAL(signalFault(QString)));
        m_fields->Set("showTracks", true);
        QVERIFY(!m_settings->GetMultiTrackOnFlag());
        QVERIFY(!faults.last().at(0).toString().isEmpty());
        QVERIFY(m_settings->SetTracks({QRectF(0, 2, Width, 5), QRectF(0, 20, Width, 5)}));
        QCOMPARE(Field("tracks").value.toString(), QString("2"));
        m_fields->Set("showTracks", true);
        QVERIFY(m_settings->GetMultiTrackOnFlag());
        QCOMPARE(faults.last().at(0).toString(), QString());
    }

    void tracksAreAddedChangedAndRemoved()
    {
        QVERIFY(!Field("removeTrack").isEnabled && !Field("clearTracks").isEnabled && !Field("trackTop").isEnabled);
        m_fields->Set("addTrack", QVariant()); // two rows in the middle of 40
        QCOMPARE(m_settings->GetMultiTrackList(), QList<QRectF>({QRectF(0, 19, Width, 2)}));
        QVERIFY(m_settings->GetMultiTrackOnFlag());
        QCOMPARE(Field("track").value.toInt(), 1);
        m_fields->Set("trackBottom", 29);
        m_fields->Set("trackTop", 25);
        QCOMPARE(m_settings->GetMultiTrackList(), QList<QRectF>({QRectF(0, 25, Width, 5)}));
        m_fields->Set("addTrack", QVariant()); // the larger gap lies above, so this one is the first
        QCOMPARE(m_settings->GetMultiTrackList(), QList<QRectF>({QRectF(0, 11, Width, 2), QRectF(0, 25, Width, 5)}));
        QCOMPARE(Field("track").value.toInt(), 1);

        QSignalSpy faults(m_fields.get(), SIGNAL(signalFault(QString)));
        m_fields->Set("trackBottom", 26);
        QCOMPARE(faults.last().at(0).toString(), QString("Tracks 1 and 2 overlap: move or remove one of them."));
        QCOMPARE(Field("trackBottom").value.toInt(), 12);

        m_fields->Set("track", 2);
        m_fields->Set("removeTrack", QVariant());
        QCOMPARE(m_settings->GetMultiTrackList(), QList<QRectF>({QRectF(0, 11, Width, 2)}));
        m_tracks->UndoStack()->undo();
        QCOMPARE(m_settings->GetMultiTrackList().size(), 2);
        m_fields->Set("clearTracks", QVariant());
        QVERIFY(m_settings->GetMultiTrackList().isEmpty() && !m_settings->GetMultiTrackOnFlag());
        QCOMPARE(Field("track").value.toInt(), 0);
        m_tracks->UndoStack()->undo();
        QVERIFY(m_settings->GetMultiTrackList().size() == 2 && m_settings->GetMultiTrackOnFlag());
        m_tracks->UndoStack()->redo();
        QVERIFY(m_settings->GetMultiTrackList().isEmpty());
    }

    void correctionsAreSet_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("set");
        QTest::addColumn<QVariant>("kept");
        QTest::newRow("dark") << "dark" << QVariant(true) << QVariant(true);
        QTest::newRow("reference") << "reference" << QVariant(true) << QVariant(true);
        QTest::newRow("absorbance") << "quantity" << QVariant(2) << QVariant(2);
        QTest::newRow("a quantity that is none") << "quantity" << QVariant(8) << QVariant(2);
        QTest::newRow("average") << "average" << QVariant(12) << QVariant(12);
        QTest::newRow("average of none") << "average" << QVariant(0) << QVariant(1);
        QTest::newRow("average of too many") << "average" << QVariant(100000) << QVariant(256);
        QTest::newRow("smoothing") << "smoothing" << QVariant(9) << QVariant(9);
        QTest::newRow("a window is odd") << "smoothing" << QVariant(8) << QVariant(9);
        QTest::newRow("no smoothing") << "smoothing" << QVariant(1) << QVariant(1);
        QTest::newRow("cosmic rays") << "cosmicRays" << QVariant(true) << QVariant(true);
        QTest::newRow("baseline") << "baseline" << QVariant(true) << QVariant(true);
    }

    void correctionsAreSet()
    {
        QFETCH(QString, key);
        QFETCH(QVariant, set);
        QFETCH(QVariant, kept);
        m_fields->Set(key, set);
        QCOMPARE(Field(key).value.toDouble(), kept.toDouble());
    }

    void windowOfOneSampleIsOff()
    {
        m_fields->Set("smoothing", 5);
        QCOMPARE(m_settings->Recipe().corrections.smoothing, 5);
        m_fields->Set("smoothing", 1);
        QCOMPARE(m_settings->Recipe().corrections.smoothing, 0);
    }

    void darkIsTakenOfTheSpectrumShown()
    {
        QVERIFY(!Field("takeDark").isEnabled);
        QCOMPARE(Field("corrections").value.toString(), QString("There is no spectrum yet."));
        m_fields->Set("binning", 1);
        m_spectra->OnFrame(Frame(1, 50));
        QTRY_VERIFY(Field("takeDark").isEnabled);
        const QString plain = Field("corrections").value.toString();
        QVERIFY(!plain.isEmpty());
        m_fields->Set("takeDark", QVariant());
        m_fields->Set("dark", true);
        m_spectra->OnFrame(Frame(2, 80));
        QTRY_COMPARE(m_spectra->Shown().frameId, quint64(2));
        QCOMPARE(m_spectra->Shown().corrected.values.at(10), 30.0 * Height);
        QTRY_VERIFY(Field("corrections").value.toString() != plain);
        QCOMPARE(Field("corrections").value.toString(), QString("Corrections: dark subtracted. Values below zero are drawn at zero."));
    }

    void theLineOfCorrectionsIsThatOfTheScreen()
    {
        m_fields->Set("binning", 1);
        m_spectra->OnFrame(Frame(1, 50));
        QTRY_COMPARE(Field("corrections").value.toString(), QString("No correction is on."));
        QSignalSpy changes(m_fields.get(), SIGNAL(signalChanged()));
        m_settings->slotSetImageShown(true);
        QVERIFY(changes.count() > 0);
        QCOMPARE(Field("corrections").value.toString(), QString("None: an opened file is shown as it was saved."));
        m_settings->slotSetImageShown(false);
        QCOMPARE(Field("corrections").value.toString(), QString("No correction is on."));
        QVERIFY(m_settings->SetTracks({QRectF(0, 2, Width, 5)}));
        m_fields->Set("showTracks", true);
        QVERIFY(!Field("takeDark").isEnabled);
        QCOMPARE(Field("corrections").value.toString(), QString("There is no spectrum yet."));
        m_fields->Set("baseline", true);
        m_spectra->OnFrame(Frame(2, 50));
        QTRY_COMPARE(Field("corrections").value.toString(), QString("Corrections: baseline removed. Values below zero are drawn at zero."));
        changes.clear();
        m_fields->Set("showTracks", false);
        QVERIFY(changes.count() > 0);
        QCOMPARE(Field("corrections").value.toString(), QString("There is no spectrum yet."));
    }

    void saturationIsSaid()
    {
        const auto isSaid = [this] {
            const PanelFields fields = m_fields->Fields();
            return std::any_of(fields.begin(), fields.end(), [](const PanelField &field) { return field.key == "saturated"; });
        };
        m_fields->Set("binning", 1);
        m_spectra->OnFrame(Frame(1, 65535));
        QTRY_VERIFY(isSaid());
        m_spectra->OnFrame(Frame(2, 65534));
        QTRY_VERIFY(!isSaid());
        QVERIFY(m_settings->SetTracks({QRectF(0, 2, Width, 5)}));
        m_fields->Set("showTracks", true);
        m_spectra->OnFrame(Frame(3, 65535));
        QTRY_VERIFY(isSaid());

        // An opened file has its own.
        bool isOpenedSaturated = false;
        m_fields->SetOpenedSaturation([&] { return isOpenedSaturated; });
        m_settings->slotSetImageShown(true);
        QVERIFY(!isSaid());
        isOpenedSaturated = true;
        m_fields->slotSpectrumShown();
        QVERIFY(isSaid());
        QCOMPARE(Field("saturated").value.toString(), QString("Pixels are at the end of their range: peaks are cut off there."));
        m_settings->slotSetImageShown(false);
        QVERIFY(isSaid());
        QVERIFY(Field("saturated").value.toString().endsWith("Shorten the exposure."));
    }

    /// What is taken is live, and that is not what is seen.
    void nothingIsTakenWhileAnOpenedFileIsShown()
    {
        m_fields->Set("binning", 1);
        m_spectra->OnFrame(Frame(1, 50));
        QTRY_VERIFY(Field("takeDark").isEnabled);
        m_settings->slotSetImageShown(true);
        for (const char *key : {"takeDark", "takeReference"}) {
            QVERIFY(!Field(key).isEnabled);
            QCOMPARE(Field(key).toolTip, QString("An opened file is shown: go to the camera first."));
        }
        m_settings->slotSetImageShown(false);
        QVERIFY(Field("takeDark").isEnabled && Field("takeReference").isEnabled);
    }

    void framesThatWereMissedAreSaid()
    {
        m_fields->Set("binning", 1);
        m_spectra->OnFrame(Frame(1, 50));
        QTRY_COMPARE(m_spectra->Shown().frameId, quint64(1));
        QCOMPARE(Field("missed").key, QString());
        QCOMPARE(LedgerLine(m_spectra->Ledger()), QString("Spectra of 1 of 1 frames, none missed."));
        QTRY_COMPARE(Field("corrections").value.toString(), QString("No correction is on."));
        QSignalSpy changes(m_fields.get(), SIGNAL(signalChanged()));
        m_gate.lock();
        for (quint64 id = 2; m_spectra->Ledger().missed < 5; ++id)
            m_spectra->OnFrame(Frame(id, 50));
        m_gate.unlock();
        const quint64 taken = m_spectra->Ledger().taken;
        QTRY_COMPARE(m_spectra->Ledger().computed.load(), taken - 5);
        QTRY_COMPARE(changes.count(), 1);
        QCOMPARE(Field("missed").value.toString(),
                 QString("Spectra of %1 of %2 frames; 5 came too fast and were missed.").arg(taken - 5).arg(taken));
    }

    void spectraThatSayNothingNewDoNotBuildTheFormAnew()
    {
        m_fields->Set("binning", 1);
        m_spectra->OnFrame(Frame(1, 50));
        QTRY_COMPARE(m_spectra->Shown().frameId, quint64(1));
        QTRY_VERIFY(Field("takeDark").isEnabled);
        QSignalSpy changes(m_fields.get(), SIGNAL(signalChanged()));
        m_spectra->OnFrame(Frame(2, 70));
        QTRY_COMPARE(m_spectra->Shown().frameId, quint64(2));
        QCOMPARE(changes.count(), 0);
    }

    void lookReachesThePlots()
    {
        QSignalSpy told(m_settings.get(), SIGNAL(SignalSpectralPropertyChanged()));
        m_fields->Set("lineColour", QColor(1, 2, 3));
        m_fields->Set("lineWidth", 99);
        m_fields->Set("lineStyle", 3);
        m_fields->Set("peakColour", QColor(4, 5, 6));
        m_fields->Set("peakSize", 12);
        m_fields->Set("peakNumber", 7);
        m_fields->Set("background", QColor(Qt::black));
        m_fields->Set("blank", 25);
        QCOMPARE(told.count(), 8);
        QCOMPARE(m_settings->GetLineColor(), QColor(1, 2, 3));
        QCOMPARE(m_settings->GetLineWidth(), 10.0);
        QCOMPARE(m_settings->GetLineStyle(), 3);
        QCOMPARE(m_settings->GetLinePen().style(), Qt::DashDotLine);
        QCOMPARE(m_settings->GetPeakColor(), QColor(4, 5, 6));
        QCOMPARE(m_settings->GetPeakSize(), 12.0);
        QCOMPARE(m_settings->GetPeakNumber(), 7);
        QCOMPARE(m_settings->GetBackgroundColor(), QColor(Qt::black));
        QCOMPARE(m_settings->GetBlankRatio(), 0.25);
        QCOMPARE(Field("lineStyle").value.toInt(), 3);
        QCOMPARE(Field("blank").value.toDouble(), 25.0);
    }

    void unknownKeysAreIgnored()
    {
        QSignalSpy changes(m_fields.get(), SIGNAL(signalChanged()));
        m_fields->Set("nothing", 5);
        QCOMPARE(changes.count(), 0);
    }

private:
    PanelField Field(const QString &key) const
    {
        for (const PanelField &field : m_fields->Fields()) {
            if (field.key == key)
                return field;
        }
        return PanelField();
    }

    QMutex m_gate; ///< while it is locked the thread of spectra waits in the middle of a frame
    QTemporaryDir m_folder;
    SpectrumRanges m_ranges;
    std::unique_ptr<QSettings> m_stored;
    std::unique_ptr<CentreDisplay> m_centre;
    std::unique_ptr<SpectrumSettings> m_settings;
    std::unique_ptr<SpectrumPipeline> m_spectra;
    std::unique_ptr<TrackDesk> m_tracks;
    std::unique_ptr<SpectrumFields> m_fields;
};

GUARDED_TEST_MAIN(SpectrumFieldsTest)
#include "spectrumfieldstest.moc"
