// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrumview.h"

#include "cameramainmanager.h"
#include "crossitem.h"
#include "drawareaitem.h"
#include "framemanager.h"
#include "globalclass.h"
#include "globalmanager.h"
#include "gradientcolorlayoutitem.h"
#include "imagemanager.h"
#include "intensitycurvehorizontal.h"
#include "intensitycurvevertical.h"
#include "rulerbarhorizontal.h"
#include "rulerbarvertical.h"
#include "spectrumdrawframebase.h"
#include "spectrumdrawviewbase.h"
#include "spectrumuimanager.h"
#include "useareamanager.h"

#include <QDebug>
#include <QGraphicsScene>
#include <QResizeEvent>
#include <QVBoxLayout>

namespace {

// Design pixels.
constexpr int PageMargin = 15;
constexpr int ColorBarHeight = 10;
constexpr int GrayRulerHeight = 40;
constexpr int CurveBreadth = 50;
constexpr int PixelRulerHeight = 50;
constexpr int VerticalRulerWidth = 60;
constexpr int RightSpace = 20;
constexpr int MarginsBesideRows = 30; // of the image's margin width, what does not lie left of it

constexpr int SpacerLength = 20; // screen pixels, at least
constexpr int PixelRulerRow = 4;
constexpr int HorizontalCurveRow = 5;

} // namespace

SpectrumView::SpectrumView(QWidget *parent)
    : QWidget(parent)
{
    setStyleSheet("Background:rgb(68, 73, 86); border:1px; border-color:rgb(255, 255, 255)");
    setAttribute(Qt::WA_StyledBackground); // the aids are painted in white
    // The aids keep the size of the image; the page may become smaller than they are, and the image follows.
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    m_frame = new SpectrumDrawFrameBase(this);
    m_layout = new QVBoxLayout(this);
    const int margin = GlobalClass::GetActualSize(PageMargin);
    m_layout->setContentsMargins(margin, margin, margin, margin);
    m_layout->setSpacing(0);
    m_cross = new CrossItem(nullptr);
    GetDrawView()->scene()->addItem(m_cross);

    AddColorRows();
    m_layout->addItem(new QSpacerItem(SpacerLength, 1, QSizePolicy::Expanding, QSizePolicy::Expanding));
    AddImageRow();
    m_pixelRuler = new RulerBarHorizontal(tr("Pixel Number"), nullptr); // reparented by the layout
    m_pixelRuler->setFixedHeight(GlobalClass::GetActualSize(PixelRulerHeight));
    // The height here too: both rulers begin with the same range.
    m_pixelRuler->changedShowValueRange(0, FrameManager::GetInstance()->GetFrameHeight());
    AddLowerRow(m_pixelRuler);
    m_horizontalCurve = new IntensityCurveHorizontal(nullptr); // reparented by the layout
    m_horizontalCurve->setFixedHeight(GlobalClass::GetActualSize(CurveBreadth));
    AddLowerRow(m_horizontalCurve);
    SetRulerSize(
        QSize(FrameManager::GetInstance()->GetFrameWidth(), FrameManager::GetInstance()->GetFrameHeight()));
    PlaceLowerRows();

    HideEverything();
    ConnectImageView();
    connect(SpectrumUIManager::GetInstance(), SIGNAL(signalDisplayModeChange()), this,
            SLOT(SlotDisplayModeUpdate()));
    connect(SpectrumUIManager::GetInstance(), SIGNAL(signalDisplayModePropertyChange()), this,
            SLOT(SlotDisplayModeUpdate()));
    ApplyLinePen();
}

SpectrumView::~SpectrumView() = default;

SpectrumDrawViewBase *SpectrumView::GetDrawView() const { return m_frame->GetDrawView(); }

void SpectrumView::AddColorRows()
{
    m_colorBar = new GradientColorLayoutItem(this);
    m_colorBar->setFixedHeight(GlobalClass::GetActualSize(ColorBarHeight));
    m_layout->addWidget(m_colorBar);
    m_grayRuler = new RulerBarHorizontal(tr("Gray"), nullptr); // reparented by the layout
    m_grayRuler->changedShowValueRange(0.0, 255.0);
    m_grayRuler->setFixedHeight(GlobalClass::GetActualSize(GrayRulerHeight));
    m_layout->addWidget(m_grayRuler);
}

void SpectrumView::AddImageRow()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(0);
    m_verticalCurve = new IntensityCurveVertical(nullptr); // reparented by the layout
    m_verticalCurve->setFixedWidth(GlobalClass::GetActualSize(CurveBreadth));
    row->addWidget(m_verticalCurve);
    m_verticalRuler = new RulerBarVertical("", nullptr, false); // reparented by the layout
    m_verticalRuler->setFixedWidth(GlobalClass::GetActualSize(VerticalRulerWidth));
    m_verticalRuler->changedShowValueRange(0, FrameManager::GetInstance()->GetFrameHeight());
    row->addWidget(m_verticalRuler);
    row->addWidget(m_frame);
    row->addItem(new QSpacerItem(GlobalClass::GetActualSize(RightSpace), 1, QSizePolicy::Expanding,
                                 QSizePolicy::Minimum));
    m_layout->addLayout(row);
}

void SpectrumView::AddLowerRow(QWidget *item)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(0);
    row->addWidget(item);
    row->addItem(new QSpacerItem(SpacerLength, 1, QSizePolicy::Expanding, QSizePolicy::Minimum));
    m_layout->addLayout(row);
}

void SpectrumView::ConnectImageView()
{
    const SpectrumDrawViewBase *view = GetDrawView();
    connect(view, SIGNAL(SignalImageChange(QSize)), this, SLOT(SlotImageViewChange(QSize)));
    connect(view, SIGNAL(SignalAnchorPosChange(QPointF)), m_horizontalCurve,
            SLOT(changedAnchorPosition(QPointF)));
    connect(view, SIGNAL(SignalAnchorPosChange(QPointF)), m_verticalCurve,
            SLOT(changedAnchorPosition(QPointF)));
    connect(view, SIGNAL(SignalDrawArea(QPointF, bool, bool)), this, SLOT(SlotDrawArea(QPointF, bool, bool)));
}

void SpectrumView::ConnectLiveRanges(QObject *sender)
{
    ConnectRanges(sender, SIGNAL(SignalChangeHShowValueRange(qreal, qreal)),
                  SIGNAL(SignalChangeVShowValueRange(qreal, qreal)));
}

void SpectrumView::ConnectImageRanges(QObject *sender)
{
    ConnectRanges(sender, SIGNAL(SignalImageChangeHShowValueRange(qreal, qreal)),
                  SIGNAL(SignalImageChangeVShowValueRange(qreal, qreal)));
}

void SpectrumView::ConnectRanges(QObject *sender, const char *horizontalSignal, const char *verticalSignal)
{
    if (!sender)
        return; // the rulers keep their ranges
    connect(sender, horizontalSignal, m_pixelRuler, SLOT(changedShowValueRange(qreal, qreal)));
    connect(sender, verticalSignal, m_verticalRuler, SLOT(changedShowValueRange(qreal, qreal)));
}

// Places and visibility

void SpectrumView::SlotImageViewChange(QSize size)
{
    m_firstShow = false;
    if (size.width() <= 0)
        return;
    ShowWhatIsWanted();
    m_frame->setFixedSize(size);
    const int margin = GlobalClass::GetActualSize(PageMargin);
    qDebug("widget size[%d,%d]", width(), height());

    const int barWidth = qMax(width() - 2 * margin, 0);
    m_colorBar->SetItemSize(barWidth, m_colorBar->height());
    m_colorBar->setFixedWidth(barWidth);
    m_grayRuler->setFixedWidth(barWidth);
    m_grayRuler->ApplyGeometry(m_grayRuler->geometry());

    SetRulerSize(GetDrawView()->scene()->backgroundBrush().texture().size());
    m_verticalCurve->SetItemSize(m_verticalCurve->width(), size.height());
    m_verticalCurve->setFixedHeight(size.height());
    m_verticalRuler->setFixedHeight(size.height());
    m_verticalRuler->ApplyGeometry(m_verticalRuler->geometry());

    m_pixelRuler->setFixedWidth(size.width());
    m_pixelRuler->ApplyGeometry(m_pixelRuler->geometry());
    m_horizontalCurve->SetItemSize(size.width(), m_horizontalCurve->height());
    m_horizontalCurve->setFixedWidth(size.width());
}

void SpectrumView::SetRulerSize(const QSize &pictureSize)
{
    if (pictureSize.isEmpty())
        return; // no picture yet: a ruler needs some length to count with
    const QRectF whole(QPointF(0, 0), pictureSize);
    m_verticalRuler->changedActualSize(pictureSize);
    m_verticalRuler->changedActualRect(whole, false);
    m_pixelRuler->changedActualSize(pictureSize);
    m_pixelRuler->changedActualRect(whole, false);
}

void SpectrumView::PlaceLowerRows()
{
    int marginWidth = 0;
    int marginHeight = 0;
    GetDrawView()->ComputeMargins(marginWidth, marginHeight);
    const int left = qMax(marginWidth - GlobalClass::GetActualSize(MarginsBesideRows), 0);
    for (int row : { PixelRulerRow, HorizontalCurveRow })
        m_layout->itemAt(row)->layout()->setContentsMargins(left, 0, 0, 0);
}

void SpectrumView::ShowWhatIsWanted()
{
    const UseAreaManager *useArea = UseAreaManager::GetInstance();
    m_verticalRuler->setVisible(useArea->IsAxisVisible());
    m_pixelRuler->setVisible(useArea->IsAxisVisible());
    m_verticalCurve->setVisible(useArea->IsCurveVisible());
    m_horizontalCurve->setVisible(useArea->IsCurveVisible());
    m_grayRuler->setVisible(useArea->IsColorCardVisible());
    m_colorBar->setVisible(useArea->IsColorCardVisible());
    m_frame->setEnabled(true);
    m_frame->show();
    m_cross->setVisible(true);
}

void SpectrumView::HideWhatIsUnwanted()
{
    const UseAreaManager *useArea = UseAreaManager::GetInstance();
    if (!useArea->IsAxisVisible()) {
        m_pixelRuler->hide();
        m_verticalRuler->hide();
    }
    if (!useArea->IsCurveVisible()) {
        m_horizontalCurve->hide();
        m_verticalCurve->hide();
    }
    if (!useArea->IsColorCardVisible()) {
        m_grayRuler->hide();
        m_colorBar->hide();
    }
}

void SpectrumView::HideEverything()
{
    m_verticalRuler->hide();
    m_verticalCurve->hide();
    m_pixelRuler->hide();
    m_horizontalCurve->hide();
    m_grayRuler->hide();
    m_colorBar->hide();
    m_frame->setEnabled(false);
    m_frame->hide();
    m_cross->setVisible(false);
    m_drawArea.reset(); // of a drag that ends with the picture
}

void SpectrumView::slotResetImageInfo() { HideEverything(); }

void SpectrumView::SlotSpectrumUIChange()
{
    if (!CameraMainManager::GetInstance() && !m_staticMode) {
        HideEverything();
        GetDrawView()->slotResetImageInfo(); // the first frame of the next camera shows it all again
        return;
    }
    if (m_staticMode) {
        ImageManager *image = GlobalManager::GetInstance()->GetActiveImageManager();
        if (!image || image->IsNonImage()) {
            PlaceLowerRows();
            return;
        }
        image->DrawImage();
    }
    HideWhatIsUnwanted();
    PlaceLowerRows();
    GetDrawView()->RestoreView(true);
    if (!UseAreaManager::GetInstance()->IsSpectrumPagePresent())
        SpectrumUIManager::GetInstance()->SetDisplayModeGeneral();
}

void SpectrumView::resizeEvent(QResizeEvent *event)
{
    qDebug("SpectrumView::resizeEvent size :[%d, %d]", event->size().width(), event->size().height());
}

void SpectrumView::showEvent(QShowEvent *) { setUpdatesEnabled(true); }

void SpectrumView::hideEvent(QHideEvent *) { m_drawArea.reset(); }
