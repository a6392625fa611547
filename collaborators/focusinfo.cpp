// SPDX-License-Identifier: GPL-3.0-or-later
#include "focusinfo.h"

#include "focuscrossline.h"
#include "fvbline.h"
#include "marktext.h"

#include <QGraphicsItem>
#include <QPen>
#include <QtMath>

namespace {

/// Holds marks together; paints nothing itself.
class MarkGroup : public QGraphicsObject
{
public:
    MarkGroup()
    {
        setFlag(ItemHasNoContents);
        setAcceptedMouseButtons(Qt::NoButton);
    }
    QRectF boundingRect() const override { return QRectF(); }
    void paint(QPainter *, const QStyleOptionGraphicsItem *, QWidget *) override {}
};

QPen MarkPen(const QColor &color, Qt::PenStyle style)
{
    QPen pen(color, 1, style);
    pen.setCosmetic(true);
    return pen;
}

void AddRectangle(QGraphicsItem *parent, const QRectF &rectangle, const QPen &pen)
{
    auto *item = new QGraphicsRectItem(rectangle, parent);
    item->setPen(pen);
    item->setAcceptedMouseButtons(Qt::NoButton);
}

/// A line through the middle of its rectangle, `angle` degrees from upright, as long as the rectangle is that way.
void AddSpectralLine(QGraphicsItem *parent, const QRectF &rectangle, qreal angle, const QPen &pen)
{
    const qreal length = qAbs(angle) > 45 ? rectangle.width() : rectangle.height();
    const QPointF half(qSin(qDegreesToRadians(angle)) * length / 2, qCos(qDegreesToRadians(angle)) * length / 2);
    auto *item = new QGraphicsLineItem(QLineF(rectangle.center() - half, rectangle.center() + half), parent);
    item->setPen(pen);
    item->setAcceptedMouseButtons(Qt::NoButton);
}

/// The number `index + 1` of a track stays at it, however many there are.
void AddNumber(QGraphicsItem *marks, int index, const QPointF &scenePos)
{
    auto *item = new QGraphicsSimpleTextItem(QString::number(index + 1), marks);
    item->setPos(scenePos);
    item->setBrush(Qt::cyan);
    item->setFlag(QGraphicsItem::ItemIgnoresTransformations);
    item->setAcceptedMouseButtons(Qt::NoButton);
}

} // namespace

FocusInfo::FocusInfo(QGraphicsScene *scene, FOCU_INFO_TYPE type)
    : QObject(scene)
    , m_scene(scene)
{
    if (type == FocusAssistanceInfo) {
        m_crossLine = new FocusCrossLine;
        scene->addItem(m_crossLine);
    } else {
        m_fvbLine = new FVBLine;
        scene->addItem(m_fvbLine);
    }
}

FocusInfo::~FocusInfo()
{
    delete m_marks;
    delete m_crossLine;
    delete m_fvbLine;
}

void FocusInfo::Clear()
{
    ClearMarks();
    if (m_crossLine)
        m_crossLine->Retire();
    if (m_fvbLine)
        m_fvbLine->Retire();
}

void FocusInfo::ClearFocusInfo()
{
    ClearMarks();
}

void FocusInfo::AddCrossLine(bool visible)
{
    if (!m_crossLine)
        return;
    m_crossLine->Begin();
    m_crossLine->SlotCrossLineVisiable(visible);
}

void FocusInfo::AddFocusInfo(QList<QRect> rectangles, QList<QPoint> points, QList<float> distances,
                             QList<float> angles)
{
    QGraphicsItem *marks = NewMarks();
    if (!marks)
        return;
    const Qt::PenStyle style = m_manualSelection ? Qt::DashLine : Qt::SolidLine;
    const int lines = qMin(qMin(rectangles.size(), points.size()), qMin(distances.size(), angles.size()));
    for (int i = 0; i < lines; ++i) {
        if (m_showMode != ShowLines)
            AddRectangle(marks, rectangles.at(i), MarkPen(Qt::yellow, style));
        if (m_showMode != ShowRectangles)
            AddSpectralLine(marks, rectangles.at(i), angles.at(i), MarkPen(Qt::red, style));
        const QString text =
            QString("%1  %2%3").arg(distances.at(i), 0, 'f', 2).arg(angles.at(i), 0, 'f', 2).arg(QChar(0xB0));
        auto *item = new MarkText(text, i, marks);
        item->setPos(points.at(i));
        item->setBrush(Qt::yellow);
    }
}

void FocusInfo::AddFVBInfo(QList<QPointF> endPoints, bool movable)
{
    if (m_fvbLine && endPoints.size() >= 2)
        m_fvbLine->Begin(endPoints.at(0), endPoints.at(1), movable);
}

void FocusInfo::AddMultiTrackInfo(QList<QRectF> tracks)
{
    QGraphicsItem *marks = NewMarks();
    if (!marks)
        return;
    for (int i = 0; i < tracks.size(); ++i) {
        AddRectangle(marks, tracks.at(i), MarkPen(Qt::cyan, Qt::SolidLine));
        AddNumber(marks, i, tracks.at(i).topLeft());
    }
}

void FocusInfo::SetShowMode(int mode)
{
    m_showMode = mode;
}

void FocusInfo::SetSpectrumLineManualSelection(bool manual)
{
    m_manualSelection = manual;
}

QObject *FocusInfo::GetCrossLineObject() const
{
    return m_crossLine;
}

QObject *FocusInfo::GetFVBLineObject() const
{
    return m_fvbLine;
}

/// An empty group in place of the marks before; null when the scene is gone.
QGraphicsItem *FocusInfo::NewMarks()
{
    ClearMarks();
    if (!m_scene)
        return nullptr;
    m_marks = new MarkGroup;
    m_scene->addItem(m_marks);
    return m_marks;
}

void FocusInfo::ClearMarks()
{
    delete m_marks;
}
