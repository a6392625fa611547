// SPDX-License-Identifier: GPL-3.0-or-later
#include "centredisplay.h"
#include "guardedtest.h"
#include "spectrumranges.h"
#include "spectrumsettings.h"
#include "trackdesk.h"

#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <memory>

/// Steps with tracks, and their undoing.
class TrackDeskTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void init() override;
    void cleanup() override;
    void undoingTheFirstTrackGivesBackTheBinning();
    void undoingTheFirstTrackKeepsBinningThatCameLater();
    void clearedTracksComeBackAsTheyWereShown();

private:
    /// What the list is now: first and last row of each track.
    QString Rows() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QSettings> m_stored;
    std::unique_ptr<SpectrumRanges> m_ranges;
    std::unique_ptr<CentreDisplay> m_centre;
    std::unique_ptr<SpectrumSettings> m_settings;
    std::unique_ptr<TrackDesk> m_desk;
};

namespace {

const QSize Picture(1000, 400);

} // namespace

void TrackDeskTest::init()
{
    StartGuard();
    m_folder = std::make_unique<QTemporaryDir>();
    m_stored = std::make_unique<QSettings>(m_folder->filePath("settings.ini"), QSettings::IniFormat);
    m_ranges = std::make_unique<SpectrumRanges>();
    m_centre = std::make_unique<CentreDisplay>(m_stored.get());
    m_settings = std::make_unique<SpectrumSettings>(m_ranges.get(), m_centre.get());
    m_desk = std::make_unique<TrackDesk>(m_settings.get());
    m_settings->slotSetFrameSize(Picture);
    m_desk->slotPictureSize(Picture);
}

void TrackDeskTest::cleanup()
{
    m_desk.reset();
    m_settings.reset();
    m_centre.reset();
    m_ranges.reset();
    m_stored.reset(); // writes its file, so before the folder goes
    m_folder.reset();
    EndGuard();
}

QString TrackDeskTest::Rows() const
{
    QStringList rows;
    for (const RowBand &track : m_settings->Recipe().tracks)
        rows << QString("%1-%2").arg(track.top).arg(track.bottom - 1);
    return rows.join(' ');
}

void TrackDeskTest::undoingTheFirstTrackGivesBackTheBinning()
{
    m_settings->SetBinnedRows(BinnedRows::Auto);
    m_settings->SetFVBOnFlag(1);
    m_desk->Add(); // a twentieth of the picture, in its middle
    QCOMPARE(Rows(), QString("190-209"));
    QVERIFY(m_settings->GetMultiTrackOnFlag() && !m_settings->GetFVBOnFlag());
    m_desk->UndoStack()->undo();
    QCOMPARE(Rows(), QString());
    QVERIFY(!m_settings->GetMultiTrackOnFlag());
    QVERIFY(m_settings->GetFVBOnFlag() && m_settings->IsFVBModeAuto());
    m_desk->UndoStack()->redo();
    QCOMPARE(Rows(), QString("190-209"));
    QVERIFY(m_settings->GetMultiTrackOnFlag() && !m_settings->GetFVBOnFlag());
}

void TrackDeskTest::undoingTheFirstTrackKeepsBinningThatCameLater()
{
    m_desk->Add();
    m_settings->SetFVBOnFlag(1); // hides the track
    m_desk->UndoStack()->undo();
    QCOMPARE(Rows(), QString());
    QVERIFY(m_settings->GetFVBOnFlag());
}

void TrackDeskTest::clearedTracksComeBackAsTheyWereShown()
{
    m_desk->Add();
    m_settings->SetFVBOnFlag(1);
    m_desk->Clear();
    QVERIFY(m_settings->GetFVBOnFlag());
    m_desk->UndoStack()->undo();
    QCOMPARE(Rows(), QString("190-209"));
    QVERIFY(!m_settings->GetMultiTrackOnFlag() && m_settings->GetFVBOnFlag());
}

GUARDED_TEST_MAIN(TrackDeskTest)
#include "trackdesktest.moc"
