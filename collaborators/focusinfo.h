// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "collaboratorsexport.h"

#include <QGraphicsObject>
#include <QGraphicsScene>
#include <QList>
#include <QObject>
#include <QPointF>
#include <QPointer>
#include <QRectF>

/// What a FocusInfo draws.
enum FOCU_INFO_TYPE { FocusAssistanceInfo = 0, FVBAndMultiTrackInfo = 3 };

class FocusCrossLine;
class FVBLine;
class QGraphicsItem;

/// Draws focus-assistance, FVB and multi-track marks into a scene and takes them out again. The
/// scene owns the items and, unless somebody deletes it before, this object.
class GLOBALUI_COLLABORATORS_EXPORT FocusInfo : public QObject
{
    Q_OBJECT

public:
    FocusInfo(QGraphicsScene *scene, FOCU_INFO_TYPE type);
    ~FocusInfo() override;

    /// Takes all marks out of the scene. The cross line and the FVB line do not come back by their
    /// slots; adding them again brings them back.
    void Clear();
    /// Takes the lines and rectangles of focus assistance out; the cross line stays.
    void ClearFocusInfo();
    void AddCrossLine(bool visible);
    /// One entry of each list per line; rectangles and points in picture pixels, angles in degrees.
    void AddFocusInfo(QList<QRect> rectangles, QList<QPoint> points, QList<float> distances,
                      QList<float> angles);
    /// The band between two rows (y of the two points), or between two columns of a spectrum that runs along them;
    /// `movable` lets the user drag its edges.
    void AddFVBInfo(QList<QPointF> endPoints, bool movable);
    void AddMultiTrackInfo(QList<QRectF> tracks);
    /// Which marks of the spectral lines are shown: 0 all, 1 rectangles, 2 lines.
    void SetShowMode(int mode);
    /// Lines chosen by hand are drawn dashed.
    void SetSpectrumLineManualSelection(bool manual);
    /// Has the slots SlotImageSizeChanged(), SlotCrossLineVisiable(bool), SlotCrossLineEnable(bool).
    QObject *GetCrossLineObject() const;
    /// Has the signal SignalTopBottomChanged(int, int) and the slots SetFVBArea(QPointF, QPointF),
    /// SlotFVBManualFlagChanged(bool), SlotFVBSpeedingFlagChanged(bool).
    QObject *GetFVBLineObject() const;

private:
    enum ShowMode { ShowAll = 0, ShowRectangles = 1, ShowLines = 2 };

    QGraphicsItem *NewMarks();
    void ClearMarks();

    QPointer<QGraphicsScene> m_scene;
    QPointer<QGraphicsObject> m_marks; ///< parent of the rectangles, lines and texts
    QPointer<FocusCrossLine> m_crossLine; ///< only with FocusAssistanceInfo
    QPointer<FVBLine> m_fvbLine;          ///< only with FVBAndMultiTrackInfo
    int m_showMode = ShowAll;
    bool m_manualSelection = false;
};
