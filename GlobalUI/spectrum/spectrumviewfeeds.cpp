// SPDX-License-Identifier: GPL-3.0-or-later
// What the spectrum page is fed with: picked points, curves, levels, colours and settings.
#include "spectrumview.h"

#include "cameramainmanager.h"
#include "crossitem.h"
#include "displaymodeuimanager.h"
#include "drawareaitem.h"
#include "framemanager.h"
#include "globalmanager.h"
#include "gradientcolorlayoutitem.h"
#include "imagecore.h"
#include "imagemanager.h"
#include "intensitycurvehorizontal.h"
#include "intensitycurvevertical.h"
#include "intensitymanager.h"
#include "profileexchange.h"
#include "rulerbarhorizontal.h"
#include "rulerbarvertical.h"
#include "spectrumdrawviewbase.h"
#include "spectrumuimanager.h"

#include <QDebug>

#include <algorithm>
#include <limits>
#include <utility>

namespace {

constexpr int ShownBits = 8;
constexpr int SixteenBitDepth = 2;

bool IsFinite(const QPointF &point) { return qIsFinite(point.x()) && qIsFinite(point.y()); }

/// Without the fraction, and no further than an int goes.
int WholePixel(double place)
{
    return int(
        qBound(double(std::numeric_limits<int>::min()), place, double(std::numeric_limits<int>::max())));
}

/// A curve and what it is to show; the samples are read during the call only.
struct CurveFeed
{
    int *data;
    int size;
    int offset;
    int count;
};

void ShowCurve(IntensityCurveLayoutItem *curve, int shift, int leftLevel, int rightLevel,
               const CurveFeed &feed)
{
    curve->setShift(shift);
    curve->setLeftAndRightLevel(leftLevel, rightLevel);
    curve->updateCurve(feed.data, feed.size, feed.offset, feed.count);
}

/// With the levels of the opened picture.
void ShowImageCurve(IntensityCurveLayoutItem *curve, const CurveFeed &feed)
{
    const ImageManager *image = GlobalManager::GetInstance()->GetActiveImageManager();
    const ImageCore *core = image ? image->GetImageCore() : nullptr;
    if (!core)
        return; // nothing is open
    ShowCurve(curve, core->GetDepth() == SixteenBitDepth ? ShownBits : 0, core->GetLeftLevel(),
              core->GetRightLevel(), feed);
}

} // namespace

void SpectrumView::SlotPressPosChange(QPointF point, QRectF newRectf)
{
    if (!IsFinite(point))
        return;
    MoveCross(point);
    m_lastRect = newRectf;
    IntensityManager::GetInstance()->SetAnchorPoint(WholePixel(point.x()), WholePixel(point.y()), newRectf);
}

void SpectrumView::SlotPressPosChangeStatic(QPointF point, QRectF newRectf, bool getSpectrumFlag)
{
    qDebug("center point:[%f, %f]", point.x(), point.y());
    if (!IsFinite(point))
        return;
    MoveCross(point);
    m_lastRect = newRectf;
    ImageManager *image = GlobalManager::GetInstance()->GetActiveImageManager();
    if (getSpectrumFlag && image)
        image->GetIntensityCurveHistogramData(point, newRectf, 0);
}

void SpectrumView::MoveCross(const QPointF &point)
{
    m_cross->previousCenter = m_cross->center;
    m_cross->center = point;
    m_cross->setVisible(true);
    m_cross->update();
}

void SpectrumView::SlotDrawArea(QPointF point, bool addFlag, bool start)
{
    if (start)
        m_drawArea = std::make_unique<DrawAreaItem>(GetDrawView()->scene());
    if (!m_drawArea)
        return; // no drag has begun
    if (addFlag)
        m_drawArea->AddAreaPoint(point);
    else
        m_drawArea->SetAreaCurrentPoint(point);
    if (addFlag != start && m_drawArea->scene())
        m_drawArea->scene()->removeItem(m_drawArea.get());
}

void SpectrumView::SlotUpdateCurve(void *param)
{
    if (!SpectrumUIManager::GetInstance()->IsDisplayModePhysics())
        return;
    const FrameManager *frame = FrameManager::GetInstance();
    ExchangedProfiles profiles;
    if (!ExchangeProfiles(static_cast<SpectrumCurvePayload *>(param),
                          QSize(frame->GetFrameWidth(), frame->GetFrameHeight()), &profiles))
        return; // of another frame: the curves stay
    const CameraMainManager *camera = CameraMainManager::GetInstance();
    const int shift = camera ? std::max(camera->GetBitDepth() - ShownBits, 0) : 0;
    const auto show = [&](IntensityCurveLayoutItem *curve, const ProfilePart &part) {
        ShowCurve(curve, shift, profiles.leftLevel, profiles.rightLevel,
                  { part.samples, part.size, part.offset, part.count });
    };
    show(m_horizontalCurve, profiles.horizontal);
    show(m_verticalCurve, profiles.vertical);
    m_grayRuler->changedShowValueRange(profiles.leftLevel, profiles.rightLevel);
    m_grayRuler->ApplyGeometry(m_grayRuler->geometry());
}

void SpectrumView::SlotUpdateHorizontalCurve(int *data, int size, int offset, int count)
{
    ShowImageCurve(m_horizontalCurve, { data, size, offset, count });
}

void SpectrumView::SlotUpdateVerticalCurve(int *data, int size, int offset, int count)
{
    ShowImageCurve(m_verticalCurve, { data, size, offset, count });
}

void SpectrumView::SlotUpdateLevel(int leftLevel, int rightLevel)
{
    m_grayRuler->changedShowValueRange(leftLevel, rightLevel);
}

void SpectrumView::SlotPseudoColorsChanged(QVector<QColor> colors) { m_colorBar->changedPalette(std::move(colors)); }

void SpectrumView::SlotDisplayModeUpdate()
{
    const QString title = SpectrumUIManager::GetInstance()->GetTitleName();
    m_pixelRuler->changedTitleName(title);
    m_verticalRuler->changedTitleName(title);
    if (m_staticMode)
        SpectrumUIManager::GetInstance()->CalculateImageArea();
    else
        DisplayModeUIManager::GetInstance()->CalculatePreviewArea();
}

void SpectrumView::SlotSpectralPropertyChanged() { ApplyLinePen(); }

void SpectrumView::ApplyLinePen()
{
    const SpectrumUIManager *settings = SpectrumUIManager::GetInstance();
    for (IntensityCurveLayoutItem *curve : { static_cast<IntensityCurveLayoutItem *>(m_horizontalCurve),
                                             static_cast<IntensityCurveLayoutItem *>(m_verticalCurve) }) {
        curve->SetCurveColor(settings->GetLineColor());
        curve->SetCurvePenWidth(std::max(int(settings->GetLineWidth()), 1));
        curve->SetCurvePenStyle(settings->GetLineStyle() + 1); // the setting begins with the solid line
    }
}
