// SPDX-License-Identifier: GPL-3.0-or-later
#include "plotpicture.h"

#include "plotdrawing.h"

#include <qcustomplot.h>
#include <qwt3d_plot.h>

#include <QBuffer>
#include <QFile>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <sys/mman.h>

namespace {

constexpr int pngScale = 2;
constexpr double pointsPerPixel = 0.75; ///< of the 96 pixels of an inch

QByteArray PngOf(const QImage &image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, "PNG");
    return bytes;
}

/// What the plot's own vector writer says; empty when there was no memory for it. The writer knows files only: this one is
/// in memory.
QByteArray EpsOf(Qwt3D::Plot3D *tracks)
{
    QFile file;
    const int memory = ::memfd_create("plot", MFD_CLOEXEC);
    if (memory < 0 || !file.open(memory, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return {};
    const QString path = QString("/proc/self/fd/%1").arg(memory);
    const bool isDrawn = tracks->saveVector(path, "EPS", Qwt3D::VectorWriter::NATIVE, Qwt3D::VectorWriter::NOSORT);
    return isDrawn ? file.readAll() : QByteArray();
}

/// Paints a plot of this size, in its own pixels.
struct Painting
{
    QSize size;
    std::function<void(QCPPainter *)> paint;
};

QByteArray Png(const Painting &plot)
{
    QImage image(plot.size * pngScale, QImage::Format_RGB32);
    QCPPainter painter(&image);
    painter.scale(pngScale, pngScale);
    plot.paint(&painter);
    painter.end();
    return PngOf(image);
}

QByteArray Svg(const Painting &plot)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setSize(plot.size);
    generator.setViewBox(QRect(QPoint(), plot.size));
    QCPPainter painter(&generator);
    plot.paint(&painter);
    painter.end();
    return bytes;
}

QByteArray Pdf(const Painting &plot)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(QSizeF(plot.size) * pointsPerPixel, QPageSize::Point));
    writer.setPageMargins(QMarginsF());
    QCPPainter painter(&writer);
    painter.setWindow(QRect(QPoint(), plot.size));
    plot.paint(&painter);
    painter.end();
    return bytes;
}

QByteArray CurvePicture(QCustomPlot *curve, PlotForm form)
{
    if (form == PlotForm::Png)
        return PngOf(curve->toPixmap(curve->width(), curve->height(), pngScale).toImage());
    const Painting painting{curve->size(), [curve](QCPPainter *painter) {
                                painter->setMode(QCPPainter::pmVectorized);
                                painter->setMode(QCPPainter::pmNoCaching);
                                curve->toPainter(painter, curve->width(), curve->height());
                            }};
    return form == PlotForm::Svg ? Svg(painting) : Pdf(painting);
}

/// How the texts of the tracks are written on the screen.
struct TrackTexts
{
    QFont font;
    double dotsPerInch;
};

QByteArray TracksPicture(const QByteArray &eps, const QSize &size, const TrackTexts &texts, PlotForm form)
{
    const std::optional<PlotDrawing> drawing = PlotDrawing::FromEps(eps);
    if (!drawing)
        return {};
    const Painting painting{size, [&](QCPPainter *painter) {
                                painter->scale(size.width() / drawing->size.width(), size.height() / drawing->size.height());
                                drawing->Paint(painter, texts.font, texts.dotsPerInch);
                            }};
    switch (form) {
    case PlotForm::Png: return Png(painting);
    case PlotForm::Svg: return Svg(painting);
    case PlotForm::Pdf: break;
    }
    return Pdf(painting);
}

} // namespace

QWidget *VisiblePlot(QWidget *page)
{
    for (QCustomPlot *plot : page->findChildren<QCustomPlot *>()) {
        if (plot->isVisible())
            return plot;
    }
    for (Qwt3D::Plot3D *plot : page->findChildren<Qwt3D::Plot3D *>()) {
        if (plot->isVisible())
            return plot;
    }
    return nullptr;
}

std::function<QByteArray()> PlotPicture(QWidget *plot, PlotForm form)
{
    if (auto *curve = qobject_cast<QCustomPlot *>(plot))
        return [picture = CurvePicture(curve, form)] { return picture; };
    auto *tracks = qobject_cast<Qwt3D::Plot3D *>(plot);
    if (!tracks)
        return [] { return QByteArray(); };
    const TrackTexts texts{tracks->coordinates()->axes[Qwt3D::X1].labelFont(), double(tracks->logicalDpiY())};
    return [eps = EpsOf(tracks), size = tracks->size(), texts, form] { return TracksPicture(eps, size, texts, form); };
}
