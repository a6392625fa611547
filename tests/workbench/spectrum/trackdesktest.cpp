// SPDX-License-Identifier: GPL-3.0-or-later
#include "settingsfixture.h"
#include "takenspectrumstep.h"
#include "trackdesk.h"

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QMouseEvent>
#include <QPainter>
#include <QSignalSpy>

/// Steps with tracks, and their undoing.
class TrackDeskTest : public SettingsFixture
{
    Q_OBJECT

private slots:
    void init() override;
    void cleanup() override;
    void undoingTheFirstTrackGivesBackTheBinning();
    void undoingTheFirstTrackKeepsBinningThatCameLater();
    void clearedTracksComeBackAsTheyWereShown();
    void aStepThatIsRefusedStaysOnTheStack();
    void tracksThatWereDroppedCannotBeUndone();
    void otherStepsStayWhenTracksAreDropped();
    void droppedTracksLeaveNothingToRedo_data();
    void droppedTracksLeaveNothingToRedo();
    void whatChangesNothingIsNoStep();
    void tracksAreAddedWhereThereIsRoom();
    void aTrackThatIsMovedPastAnotherStaysChosen();
    void whatCannotBeIsRefusedAndNoStep();
    void aDragMakesATrack();
    void aDragEndsWithTheDrawing();
    void aDragEndsWhenItsTracksAreOthers();

private:
    /// The live picture, at one pixel of the screen for each, with the marks in it.
    void ShowPicture();
    /// The left button goes down, or the mouse on, or it comes up, on a row.
    void Press(int row);
    void MoveTo(int row);
    void Release(int row);
    /// Something of the marks is painted there.
    bool IsMarked(int row);
    /// What the list is now: first and last row of each track.
    QString Rows() const;

    std::unique_ptr<TrackDesk> m_desk;
    std::unique_ptr<QGraphicsScene> m_scene;
    std::unique_ptr<QGraphicsView> m_view;
};

namespace {

const QSize Picture(1000, 400);
constexpr int column = 300; ///< where the mouse is

} // namespace

void TrackDeskTest::init()
{
    SettingsFixture::init();
    m_desk = std::make_unique<TrackDesk>(m_settings.get());
    m_settings->slotSetFrameSize(Picture);
    m_desk->slotPictureSize(Picture);
}

void TrackDeskTest::cleanup()
{
    m_view.reset();
    m_desk.reset();
    m_scene.reset();
    SettingsFixture::cleanup();
}

void TrackDeskTest::ShowPicture()
{
    m_scene = std::make_unique<QGraphicsScene>(QRectF(QPointF(0, 0), Picture));
    m_scene->setBackgroundBrush(Qt::black);
    m_desk->ShowIn(m_scene.get());
    m_view = std::make_unique<QGraphicsView>(m_scene.get());
    m_view->setFrameShape(QFrame::NoFrame);
    m_view->setMouseTracking(true);
    m_view->resize(Picture);
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
}

void TrackDeskTest::Press(int row) { QTest::mousePress(m_view->viewport(), Qt::LeftButton, {}, m_view->mapFromScene(column, row)); }

void TrackDeskTest::MoveTo(int row)
{
    const QPoint place = m_view->mapFromScene(column, row);
    QMouseEvent move(QEvent::MouseMove, place, m_view->viewport()->mapToGlobal(place), Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(m_view->viewport(), &move);
}

void TrackDeskTest::Release(int row) { QTest::mouseRelease(m_view->viewport(), Qt::LeftButton, {}, m_view->mapFromScene(column, row)); }

bool TrackDeskTest::IsMarked(int row)
{
    QImage seen(Picture, QImage::Format_RGB32);
    QPainter painter(&seen);
    m_scene->render(&painter);
    return seen.pixel(column, row) != QColor(Qt::black).rgb();
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

void TrackDeskTest::aStepThatIsRefusedStaysOnTheStack()
{
    QList<QRectF> found;
    for (int i = 0; i < 21; ++i)
        found << QRectF(0, 10 * i, Picture.width(), 5);
    m_settings->SetHorizontal(false);
    m_settings->SetMode(DisplayMode::Tracks3D);
    m_desk->slotTracksFound(found);
    m_desk->Clear();
    m_settings->SetMode(DisplayMode::Plot);

    QSignalSpy told(m_settings.get(), &SpectrumSettings::signalMessage);
    QUndoStack *stack = m_desk->UndoStack();
    stack->undo();
    QCOMPARE(told.count(), 1);
    QCOMPARE(told[0][0].toString(), QString("There are 21 tracks and the plot shows 20 at most: take some away."));
    QCOMPARE(Rows(), QString());
    QCOMPARE(stack->undoText(), QString("Clear Tracks"));
    QVERIFY(!stack->canRedo());

    m_settings->SetMode(DisplayMode::Tracks3D); // where there is room
    stack->undo();
    QCOMPARE(m_settings->GetMultiTrackList(), found);
    stack->undo();
    QCOMPARE(Rows(), QString());
    m_settings->SetMode(DisplayMode::Plot);
    told.clear();
    stack->redo();
    QCOMPARE(told.count(), 1);
    QCOMPARE(Rows(), QString());
    QCOMPARE(stack->redoText(), QString("Find Tracks"));
    QVERIFY(!stack->canUndo());
    m_settings->SetMode(DisplayMode::Tracks3D);
    stack->redo();
    QCOMPARE(m_settings->GetMultiTrackList(), found);
    QCOMPARE(stack->undoText(), QString("Find Tracks"));
}

void TrackDeskTest::tracksThatWereDroppedCannotBeUndone()
{
    m_desk->Add();
    m_desk->Add();
    QSignalSpy told(m_settings.get(), &SpectrumSettings::signalMessage);
    m_settings->slotSetFrameSize(QSize(1000, 350)); // the tracks still fit
    QVERIFY(m_desk->UndoStack()->canUndo() && told.isEmpty());
    m_settings->slotSetFrameSize(QSize(1000, 100));
    QCOMPARE(Rows(), QString());
    QCOMPARE(told.count(), 1);
    QVERIFY(!m_desk->UndoStack()->canUndo() && !m_desk->UndoStack()->canRedo());
}

/// As a dark spectrum that was taken.
void TrackDeskTest::otherStepsStayWhenTracksAreDropped()
{
    QUndoStack *stack = m_desk->UndoStack();
    quint64 dark = 0;
    const auto take = [&](quint64 before, quint64 after) {
        Spectrum none;
        none.frameId = before;
        Spectrum taken;
        taken.frameId = after;
        stack->push(new TakenSpectrumStep(QString("Take %1").arg(after), none, taken, [&](const Spectrum &set) { dark = set.frameId; }));
    };
    take(0, 1);
    m_desk->Add();
    take(1, 2);
    m_desk->Add();
    take(2, 3);
    stack->undo();
    m_settings->slotSetFrameSize(QSize(1000, 100));
    QCOMPARE(Rows(), QString());
    QCOMPARE(dark, quint64(2));
    QCOMPARE(stack->undoText(), QString("Take 2"));
    QCOMPARE(stack->redoText(), QString("Take 3"));
    stack->undo();
    QCOMPARE(dark, quint64(1));
    QCOMPARE(stack->undoText(), QString("Take 1"));
    stack->undo();
    QCOMPARE(dark, quint64(0));
    QVERIFY(!stack->canUndo());
    QCOMPARE(Rows(), QString());
}

void TrackDeskTest::droppedTracksLeaveNothingToRedo_data()
{
    QTest::addColumn<QString>("steps");
    QTest::addColumn<int>("undone");
    QTest::addColumn<QString>("undoText");
    QTest::newRow("a track of two") << "tt" << 1 << "";
    QTest::newRow("two tracks after a dark") << "dtt" << 1 << "Take Dark";
    QTest::newRow("two tracks around a dark") << "ttdt" << 1 << "Take Dark";
}

/// What was told of the stack last is how it is: menus go by that.
void TrackDeskTest::droppedTracksLeaveNothingToRedo()
{
    QFETCH(QString, steps);
    QFETCH(int, undone);
    QFETCH(QString, undoText);
    QUndoStack *stack = m_desk->UndoStack();
    for (const QChar step : steps) {
        if (step == 't')
            m_desk->Add();
        else
            stack->push(new TakenSpectrumStep("Take Dark", {}, {}, [](const Spectrum &) {}));
    }
    QSignalSpy redo(stack, &QUndoStack::canRedoChanged);
    QSignalSpy text(stack, &QUndoStack::redoTextChanged);
    for (int i = 0; i < undone; ++i)
        stack->undo();
    QVERIFY(redo.last()[0].toBool());
    m_settings->slotSetFrameSize(QSize(1000, 100)); // in which the tracks are not
    QVERIFY(!stack->canRedo());
    QVERIFY(!redo.last()[0].toBool());
    QCOMPARE(text.last()[0].toString(), QString());
    QCOMPARE(stack->undoText(), undoText);
}

void TrackDeskTest::whatChangesNothingIsNoStep()
{
    const QList<QRectF> found{QRectF(0, 40, Picture.width(), 10), QRectF(0, 80, Picture.width(), 10)};
    QUndoStack *stack = m_desk->UndoStack();
    m_desk->slotTracksFound(found);
    QCOMPARE(stack->count(), 1);
    m_desk->slotTracksFound({found[1], found[0]});
    m_desk->Choose(1);
    m_desk->SetChosenRows(80, 89);
    QCOMPARE(stack->count(), 1);
    QCOMPARE(m_desk->Chosen(), 1);
    m_desk->SetChosenRows(80, 90);
    QCOMPARE(stack->count(), 2);
    QCOMPARE(Rows(), QString("40-49 80-90"));
    // Set while they are hidden, they are shown, which can be taken back.
    m_settings->SetMultiTrackOnFlag(false);
    m_desk->SetChosenRows(80, 90);
    QVERIFY(m_settings->GetMultiTrackOnFlag());
    QCOMPARE(stack->count(), 3);
    stack->undo();
    QVERIFY(!m_settings->GetMultiTrackOnFlag());
    QCOMPARE(Rows(), QString("40-49 80-90"));
}

void TrackDeskTest::tracksAreAddedWhereThereIsRoom()
{
    QSignalSpy told(m_desk.get(), &TrackDesk::signalMessage);
    m_desk->slotTracksFound({QRectF(0, 0, Picture.width(), 100)});
    m_desk->Add(); // into the middle of the 300 rows below
    QCOMPARE(Rows(), QString("0-99 240-259"));
    QCOMPARE(m_desk->Chosen(), 1);
    m_desk->RemoveChosen();
    QCOMPARE(Rows(), QString("0-99"));
    QCOMPARE(m_desk->Chosen(), 0);
    m_desk->SetChosenRows(0, Picture.height() - 1);
    QVERIFY(told.isEmpty());
    m_desk->Add();
    QCOMPARE(told.count(), 1);
    QVERIFY(told[0][0].toString().startsWith("There is no room for another track"));
    m_desk->Clear();
    QCOMPARE(m_desk->Chosen(), -1);
    m_desk->slotPictureSize(QSize());
    m_desk->Add();
    QCOMPARE(told.last()[0].toString(), QString("There is no live picture to lay a track on."));
    QCOMPARE(Rows(), QString());
}

void TrackDeskTest::aTrackThatIsMovedPastAnotherStaysChosen()
{
    m_desk->slotTracksFound({QRectF(0, 10, 1, 10), QRectF(0, 50, 1, 10), QRectF(0, 90, 1, 10)});
    m_desk->Choose(0);
    m_desk->SetChosenRows(70, 79);
    QCOMPARE(Rows(), QString("50-59 70-79 90-99"));
    QCOMPARE(m_desk->Chosen(), 1);
    QCOMPARE(m_desk->ChosenRows().top, 70);
    m_desk->SetChosenRows(0, 9);
    QCOMPARE(m_desk->Chosen(), 0);
    QCOMPARE(m_desk->UndoStack()->undoText(), QString("Change Track"));
}

void TrackDeskTest::whatCannotBeIsRefusedAndNoStep()
{
    m_desk->slotTracksFound({QRectF(0, 10, 1, 10), QRectF(0, 50, 1, 10)});
    m_desk->Choose(0);
    QSignalSpy told(m_settings.get(), &SpectrumSettings::signalMessage);
    m_desk->SetChosenRows(10, 55);
    QCOMPARE(told.count(), 1);
    QCOMPARE(told[0][0].toString(), QString("Tracks 1 and 2 overlap: move or remove one of them."));
    m_desk->slotTracksFound({}); // in the dark
    QCOMPARE(told.count(), 2);
    QCOMPARE(Rows(), QString("10-19 50-59"));
    QCOMPARE(m_desk->UndoStack()->count(), 1);
}

void TrackDeskTest::aDragMakesATrack()
{
    ShowPicture();
    m_desk->SetDrawing(true);
    Press(100);
    MoveTo(120);
    QVERIFY(IsMarked(110));
    QCOMPARE(Rows(), QString());
    Release(120);
    QCOMPARE(Rows(), QString("100-119"));
    QVERIFY(m_settings->GetMultiTrackOnFlag());
    Press(110); // the track itself
    MoveTo(200);
    Release(200);
    QCOMPARE(Rows(), QString("190-209"));
    QCOMPARE(m_desk->Chosen(), 0);
    m_desk->UndoStack()->undo();
    QCOMPARE(Rows(), QString("100-119"));
    Press(101); // an edge of it
    MoveTo(90);
    Release(90);
    QCOMPARE(Rows(), QString("90-119"));
}

void TrackDeskTest::aDragEndsWithTheDrawing()
{
    ShowPicture();
    m_desk->SetDrawing(true);
    Press(100);
    MoveTo(120);
    m_desk->SetDrawing(false); // by its key
    m_desk->SetDrawing(true);
    QVERIFY(!IsMarked(110));
    MoveTo(150);
    Release(150);
    QVERIFY(!IsMarked(110));
    QCOMPARE(Rows(), QString());
}

void TrackDeskTest::aDragEndsWhenItsTracksAreOthers()
{
    ShowPicture();
    m_desk->SetDrawing(true);
    m_desk->Add();
    Press(100);
    MoveTo(120);
    m_settings->SetFocusAssitanceFlag(true); // told, and not of the tracks
    QVERIFY(IsMarked(110));
    m_desk->UndoStack()->undo(); // by its key
    QVERIFY(!IsMarked(110));
    Release(120);
    QCOMPARE(Rows(), QString());
}

GUARDED_TEST_MAIN(TrackDeskTest)
#include "trackdesktest.moc"
