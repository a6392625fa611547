// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "trackfinder.h"

#include <QObject>
#include <QPointer>
#include <QSize>
#include <QUndoStack>

class QGraphicsScene;
class SpectrumSettings;
class TrackMarks;

/// What the user does with tracks: have them found, draw them on the live picture, move, resize and remove them. Each step
/// can be undone, until the tracks are dropped; others may put theirs on the stack. The list itself is that of the settings, sorted from the top. GUI thread.
class TrackDesk : public QObject
{
    Q_OBJECT

public:
    /// `settings` are borrowed and outlive this object.
    explicit TrackDesk(SpectrumSettings *settings, QObject *parent = nullptr);
    ~TrackDesk() override;

    /// The scene of the live picture, in picture pixels.
    void ShowIn(QGraphicsScene *scene);
    QUndoStack *UndoStack() { return &m_undo; }

    /// While tracks are drawn, the mouse on the live picture makes and moves them.
    bool IsDrawing() const { return m_isDrawing; }
    void SetDrawing(bool drawing);
    /// The track that is moved or removed next; -1 without one.
    int Chosen() const;
    void Choose(int track);
    RowBand ChosenRows() const;
    /// From row `first` to `last`.
    void SetChosenRows(int first, int last);
    /// In the middle of the largest gap.
    void Add();
    void RemoveChosen();
    void Clear();

public slots:
    void slotTracksFound(QList<QRectF> tracks);
    void slotPictureSize(QSize size);

signals:
    void signalChanged();
    /// A sentence for the status bar.
    void signalMessage(QString text);

private:
    class Step;
    struct State
    {
        std::vector<RowBand> tracks;
        bool isShown;
        bool isBinning; ///< vertically, which ends when tracks are shown
    };

    const std::vector<RowBand> &Tracks() const;
    /// Puts another list in place of the present one, or none, and shows it; false when it is refused, in words. What
    /// changes nothing is no step.
    bool Replace(std::vector<RowBand> tracks, const QString &what);
    bool Apply(const State &state);
    using StackMove = void (QUndoStack::*)();
    /// For a step on the stack; one that is refused, in words, moves the stack `back`.
    void Go(const State &state, StackMove back);
    void slotStackMoved();
    /// Their steps are no more; those of other things on the stack stay.
    void slotTracksDropped();
    void slotDragged(const std::vector<RowBand> &tracks, int track);
    void slotMenu(int track, QPoint screenPos);
    void ShowMarks();

    SpectrumSettings *m_settings;
    QPointer<TrackMarks> m_marks; ///< the scene's
    QUndoStack m_undo;
    QSize m_picture;
    int m_chosen = -1;
    bool m_isDrawing = false;
    StackMove m_moveBack = nullptr; ///< wanted, as a step was refused
    bool m_isMovingBack = false;
};
