// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibrationplot.h"

#include "calibrationmodel.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double leastResidual = 0.1; ///< pixels, up and down: less would make much of nothing
constexpr double roomAbove = 0.4;     ///< of the height, for the labels
constexpr int dotSize = 6;
constexpr int residualPart = 3; ///< the spectrum is so many times as high
constexpr int margin = 6;

} // namespace

CalibrationPlot::CalibrationPlot(const CalibrationModel *model, QWidget *parent)
    : QCustomPlot(parent)
    , m_model(model)
    , m_residualRect(new QCPAxisRect(this))
{
    setObjectName("calibrationPlot");
    setInteractions(QCP::iRangeDrag | QCP::iRangeZoom);
    AddAxes();
    AddGraphs();
    m_picked = new QCPItemStraightLine(this);
    m_picked->setVisible(false);
    m_zero = new QCPItemStraightLine(this);
    for (QCPItemPosition *end : {m_zero->point1, m_zero->point2}) {
        end->setAxisRect(m_residualRect);
        end->setAxes(m_residualRect->axis(QCPAxis::atBottom), m_residualRect->axis(QCPAxis::atLeft));
    }
    m_zero->setClipAxisRect(m_residualRect);
    m_zero->point2->setCoords(1, 0);
    SetColours();
    connect(model, &CalibrationModel::signalChanged, this, &CalibrationPlot::slotShow);
    connect(this, &QCustomPlot::beforeReplot, this, &CalibrationPlot::PlaceLabels);
    slotShow();
}

QSize CalibrationPlot::sizeHint() const { return QSize(fontMetrics().averageCharWidth() * 130, fontMetrics().height() * 18); }

/// Both parts lie one beneath the other and move together.
void CalibrationPlot::AddAxes()
{
    plotLayout()->addElement(1, 0, m_residualRect);
    plotLayout()->setRowStretchFactor(0, residualPart);
    plotLayout()->setRowSpacing(0);
    auto *sides = new QCPMarginGroup(this);
    for (QCPAxisRect *rect : {axisRect(), m_residualRect}) {
        rect->setMarginGroup(QCP::msLeft | QCP::msRight, sides);
        rect->setMinimumMargins(QMargins(margin, margin, margin, margin));
        rect->setRangeDrag(Qt::Horizontal);
        rect->setRangeZoom(Qt::Horizontal);
    }
    QCPAxis *below = m_residualRect->axis(QCPAxis::atBottom);
    connect(xAxis, QOverload<const QCPRange &>::of(&QCPAxis::rangeChanged), below,
            QOverload<const QCPRange &>::of(&QCPAxis::setRange));
    connect(below, QOverload<const QCPRange &>::of(&QCPAxis::rangeChanged), xAxis,
            QOverload<const QCPRange &>::of(&QCPAxis::setRange));
    xAxis->setTickLabels(false);
    below->setLabel(tr("Pixel"));
    yAxis->setLabel(tr("Counts"));
    yAxis->setNumberFormat("gb");
    yAxis->setNumberPrecision(4);
    m_residualRect->axis(QCPAxis::atLeft)->setLabel(tr("Residual [pixel]"));
    m_residualRect->axis(QCPAxis::atLeft)->ticker()->setTickCount(3);
}

void CalibrationPlot::AddGraphs()
{
    m_spectrum = addGraph();
    m_peaks = addGraph();
    m_points = addGraph();
    m_residuals = addGraph(m_residualRect->axis(QCPAxis::atBottom), m_residualRect->axis(QCPAxis::atLeft));
    for (QCPGraph *dots : {m_peaks, m_points, m_residuals})
        dots->setLineStyle(QCPGraph::lsNone);
}

void CalibrationPlot::changeEvent(QEvent *event)
{
    QCustomPlot::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        SetColours();
}

void CalibrationPlot::SetColours()
{
    const QColor text = palette().color(QPalette::WindowText);
    const QColor accent = palette().color(QPalette::Highlight);
    const QColor muted = palette().color(QPalette::Mid);
    setBackground(palette().base());
    for (const QCPAxisRect *rect : {axisRect(), m_residualRect}) {
        for (QCPAxis *axis : rect->axes())
            SetColoursOf(axis);
    }
    m_spectrum->setPen(QPen(text));
    m_peaks->setScatterStyle(QCPScatterStyle(QCPScatterStyle::ssCircle, QPen(accent), Qt::NoBrush, dotSize));
    for (QCPGraph *dots : {m_points, m_residuals})
        dots->setScatterStyle(QCPScatterStyle(QCPScatterStyle::ssDisc, QPen(accent), accent, dotSize + 1));
    m_picked->setPen(QPen(accent, 1, Qt::DashLine));
    m_zero->setPen(QPen(muted));
    for (QCPItemText *label : qAsConst(m_labels))
        label->setColor(text);
    replot(rpQueuedReplot);
}

void CalibrationPlot::SetColoursOf(QCPAxis *axis)
{
    const QColor text = palette().color(QPalette::WindowText);
    const QPen line(palette().color(QPalette::Mid));
    axis->setLabelColor(text);
    axis->setTickLabelColor(text);
    axis->setBasePen(line);
    axis->setTickPen(line);
    axis->setSubTickPen(line);
    axis->grid()->setVisible(false);
}

void CalibrationPlot::SetPicked(double pixel)
{
    m_picked->point1->setCoords(pixel, 0);
    m_picked->point2->setCoords(pixel, 1);
    m_picked->setVisible(!m_model->Values().empty());
    replot(rpQueuedReplot);
}

void CalibrationPlot::slotShow()
{
    ShowSpectrum();
    ShowPoints();
    replot(rpQueuedReplot);
}

/// A part that is looked at stays until the spectrum is another one.
void CalibrationPlot::ShowSpectrum()
{
    const std::vector<double> &values = m_model->Values();
    QVector<double> pixels(int(values.size()));
    for (int i = 0; i < pixels.size(); ++i)
        pixels[i] = i;
    m_spectrum->setData(pixels, QVector<double>(values.begin(), values.end()), true);
    if (values.size() != m_shownCount)
        xAxis->setRange(0, std::max(1.0, double(m_model->Width() - 1)));
    m_shownCount = values.size();
    if (!values.empty()) {
        const auto ends = std::minmax_element(values.begin(), values.end());
        const double height = std::max(1.0, *ends.second - *ends.first);
        yAxis->setRange(*ends.first - height * 0.02, *ends.second + height * roomAbove);
    }
    m_peaks->data()->clear();
    for (const SpectralPeak &peak : m_model->Peaks())
        m_peaks->addData(peak.position, ValueAt(peak.position));
}

void CalibrationPlot::ShowPoints()
{
    for (QCPItemText *label : qAsConst(m_labels))
        removeItem(label);
    m_labels.clear();
    m_points->data()->clear();
    m_residuals->data()->clear();
    const CalibrationFit &fit = m_model->Fit();
    double most = leastResidual;
    for (int i = 0; i < m_model->Points().size(); ++i) {
        const CalibrationPoint &point = m_model->Points()[i];
        const double value = ValueAt(point.pixel);
        m_points->addData(point.pixel, value);
        auto *label = new QCPItemText(this); // owned by the plot
        label->setText(locale().toString(point.nm, 'f', 2));
        label->setRotation(-90);
        label->setPositionAlignment(Qt::AlignRight | Qt::AlignVCenter);
        label->setColor(palette().color(QPalette::WindowText));
        label->position->setTypeY(QCPItemPosition::ptAxisRectRatio);
        label->position->setCoords(point.pixel, 0);
        m_labels << label;
        if (i < fit.residualsPixel.size()) {
            m_residuals->addData(point.pixel, fit.residualsPixel[i]);
            most = std::max(most, std::abs(fit.residualsPixel[i]));
        }
    }
    m_residualRect->axis(QCPAxis::atLeft)->setRange(-1.2 * most, 1.2 * most);
}

/// Along the top; one that would cover its neighbour waits until that part is shown larger.
void CalibrationPlot::PlaceLabels()
{
    const int height = fontMetrics().height();
    double end = xAxis->coordToPixel(xAxis->range().lower);
    for (QCPItemText *label : qAsConst(m_labels)) {
        const double place = xAxis->coordToPixel(label->position->key());
        label->setVisible(place - height / 2.0 >= end);
        if (label->visible())
            end = place + height / 2.0;
    }
}

double CalibrationPlot::ValueAt(double pixel) const
{
    const std::vector<double> &values = m_model->Values();
    const int index = int(std::lround(pixel));
    return index >= 0 && size_t(index) < values.size() ? values[size_t(index)] : 0;
}

void CalibrationPlot::mousePressEvent(QMouseEvent *event)
{
    m_pressed = event->pos();
    QCustomPlot::mousePressEvent(event);
}

/// A drag shows another part; a click picks.
void CalibrationPlot::mouseReleaseEvent(QMouseEvent *event)
{
    QCustomPlot::mouseReleaseEvent(event);
    const bool isClick = (event->pos() - m_pressed).manhattanLength() < QApplication::startDragDistance();
    if (event->button() == Qt::LeftButton && isClick && !m_model->Values().empty())
        emit signalPicked(qBound(0.0, xAxis->pixelToCoord(event->pos().x()), double(m_model->Values().size() - 1)));
}
