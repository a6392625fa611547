// SPDX-License-Identifier: GPL-3.0-or-later
#include "trackdesk.h"

#include "spectrumsettings.h"
#include "trackmarks.h"

#include <QGraphicsScene>
#include <QMenu>

#include <algorithm>
#include <utility>

/// Another list of tracks in place of the one before.
class TrackDesk::Step : public QUndoCommand
{
public:
    Step(TrackDesk *desk, const QString &what, const State &before, const State &after)
        : QUndoCommand(what)
        , m_desk(desk)
        , m_before(before)
        , m_after(after)
    {
    }

    void undo() override { m_desk->Go(m_before, &QUndoStack::redo); }
    /// It is done already when it comes onto the stack.
    void redo() override
    {
        if (m_isOnStack)
            m_desk->Go(m_after, &QUndoStack::undo);
        m_isOnStack = true;
    }

private:
    TrackDesk *m_desk;
    const State m_before;
    const State m_after;
    bool m_isOnStack = false;
};

namespace {

QList<QRectF> RectsOf(const std::vector<RowBand> &tracks, int width)
{
    QList<QRectF> rects;
    for (const RowBand &track : tracks)
        rects << QRectF(0, track.top, width, track.bottom - track.top);
    return rects;
}

bool IsAbove(const RowBand &a, const RowBand &b) { return a.top < b.top; }

} // namespace

TrackDesk::TrackDesk(SpectrumSettings *settings, QObject *parent)
    : QObject(parent)
    , m_settings(settings)
{
    connect(settings, &SpectrumSettings::signalRecipeChanged, this, &TrackDesk::ShowMarks);
    connect(settings, &SpectrumSettings::signalTracksDropped, this, &TrackDesk::slotTracksDropped);
    connect(&m_undo, &QUndoStack::indexChanged, this, &TrackDesk::slotStackMoved);
}

TrackDesk::~TrackDesk()
{
    delete m_marks;
}

void TrackDesk::ShowIn(QGraphicsScene *scene)
{
    delete m_marks;
    if (!scene)
        return;
    m_marks = new TrackMarks;
    m_marks->SetPicture(m_picture);
    connect(m_marks, &TrackMarks::signalDragged, this, &TrackDesk::slotDragged);
    connect(m_marks, &TrackMarks::signalChosen, this, &TrackDesk::Choose);
    connect(m_marks, &TrackMarks::signalMenuWanted, this, &TrackDesk::slotMenu);
    scene->addItem(m_marks);
    ShowMarks();
}

const std::vector<RowBand> &TrackDesk::Tracks() const { return m_settings->Recipe().tracks; }

void TrackDesk::slotPictureSize(QSize size)
{
    m_picture = size;
    if (m_marks)
        m_marks->SetPicture(size);
}

void TrackDesk::SetDrawing(bool drawing)
{
    if (m_isDrawing == drawing)
        return;
    m_isDrawing = drawing;
    if (drawing) {
        if (!Tracks().empty())
            m_settings->SetMultiTrackOnFlag(true);
        emit signalMessage(tr("Drag over rows of the live picture for a new track; drag a track or its edges to change it."));
    }
    ShowMarks();
}

int TrackDesk::Chosen() const { return m_chosen < int(Tracks().size()) ? m_chosen : -1; }

void TrackDesk::Choose(int track)
{
    m_chosen = track;
    ShowMarks();
}

RowBand TrackDesk::ChosenRows() const { return Chosen() < 0 ? RowBand() : Tracks()[size_t(Chosen())]; }

void TrackDesk::SetChosenRows(int first, int last)
{
    if (Chosen() < 0)
        return;
    std::vector<RowBand> tracks = Tracks();
    tracks[size_t(Chosen())].top = first;
    tracks[size_t(Chosen())].bottom = last + 1;
    slotDragged(tracks, Chosen());
}

void TrackDesk::Add()
{
    const RowBand band = FreeBand(Tracks(), m_picture.height());
    if (band.bottom <= band.top) {
        emit signalMessage(m_picture.isEmpty() ? tr("There is no live picture to lay a track on.")
                                               : tr("There is no room for another track: make one smaller or remove it."));
        return;
    }
    std::vector<RowBand> tracks = Tracks();
    tracks.push_back(band);
    slotDragged(tracks, int(tracks.size()) - 1);
}

void TrackDesk::RemoveChosen()
{
    if (Chosen() < 0)
        return;
    std::vector<RowBand> tracks = Tracks();
    tracks.erase(tracks.begin() + Chosen());
    Replace(tracks, tr("Remove Track"));
    Choose(std::min(m_chosen, int(Tracks().size()) - 1));
}

void TrackDesk::Clear()
{
    if (!Tracks().empty())
        Replace({}, tr("Clear Tracks"));
}

void TrackDesk::slotTracksFound(QList<QRectF> tracks)
{
    std::vector<RowBand> bands;
    for (const QRectF &track : tracks) {
        RowBand band;
        band.top = qRound(track.top());
        band.bottom = qRound(track.bottom());
        bands.push_back(band);
    }
    if (bands.empty())
        m_settings->SetTracks({}); // which says so
    else
        Replace(bands, tr("Find Tracks"));
}

/// Numbers go from the top: a track that was moved past another has another one then.
void TrackDesk::slotDragged(const std::vector<RowBand> &tracks, int track)
{
    const bool isNew = tracks.size() > Tracks().size();
    const RowBand dragged = tracks[size_t(track)];
    if (Replace(tracks, isNew ? tr("Add Track") : tr("Change Track")))
        m_chosen = int(std::count_if(Tracks().begin(), Tracks().end(), [&](const RowBand &other) { return IsAbove(other, dragged); }));
    ShowMarks();
}

bool TrackDesk::Replace(std::vector<RowBand> tracks, const QString &what)
{
    std::sort(tracks.begin(), tracks.end(), IsAbove);
    const bool isShown = !tracks.empty();
    const bool isBinning = m_settings->GetFVBOnFlag() != 0;
    const State before{Tracks(), m_settings->GetMultiTrackOnFlag(), isBinning};
    if (HaveSameRows(tracks, before.tracks) && before.isShown == isShown)
        return true;
    const State after{tracks, isShown, isBinning && !isShown};
    if (!Apply(after))
        return false;
    m_undo.push(new Step(this, what, before, after));
    emit signalChanged();
    return true;
}

void TrackDesk::Go(const State &state, StackMove back)
{
    if (!m_isMovingBack && !Apply(state))
        m_moveBack = back;
}

/// The stack has moved though the step was refused: it stays to be undone, or done, when there is room for its tracks.
void TrackDesk::slotStackMoved()
{
    if (!m_moveBack)
        return;
    m_isMovingBack = true;
    (m_undo.*std::exchange(m_moveBack, nullptr))();
    m_isMovingBack = false;
}

/// The stack lets go of what is obsolete where it moves over it: all of it, and back to where it was. Of an obsolete step
/// that it would redo it says nothing, so that it moves over those that are left once more.
void TrackDesk::slotTracksDropped()
{
    int others = 0;
    int done = 0;
    for (int i = 0; i < m_undo.count(); ++i) {
        auto *step = const_cast<QUndoCommand *>(m_undo.command(i));
        if (dynamic_cast<Step *>(step)) {
            step->setObsolete(true);
            continue;
        }
        ++others;
        done += i < m_undo.index() ? 1 : 0;
    }
    if (others == 0) {
        m_undo.clear();
        return;
    }
    while (m_undo.canUndo())
        m_undo.undo();
    while (m_undo.canRedo())
        m_undo.redo();
    while (m_undo.canUndo())
        m_undo.undo();
    while (m_undo.index() < done)
        m_undo.redo();
}

/// Binning that the user has switched on since stays on, unless tracks are shown.
bool TrackDesk::Apply(const State &state)
{
    if (state.tracks.empty())
        m_settings->ClearTracks();
    else if (!m_settings->SetTracks(RectsOf(state.tracks, m_picture.width())))
        return false;
    m_settings->SetMultiTrackOnFlag(state.isShown);
    if (state.isBinning)
        m_settings->SetFVBOnFlag(1);
    return true;
}

void TrackDesk::slotMenu(int track, QPoint screenPos)
{
    Choose(track);
    auto *menu = new QMenu;
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(tr("Remove Track %1").arg(track + 1), this, &TrackDesk::RemoveChosen);
    menu->popup(screenPos);
}

void TrackDesk::ShowMarks()
{
    if (m_marks) {
        m_marks->setVisible(m_isDrawing);
        m_marks->SetTracks(Tracks(), Chosen());
    }
    emit signalChanged();
}
