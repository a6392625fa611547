// SPDX-License-Identifier: GPL-3.0-or-later
#include "plotpicture.h"

#include <qcustomplot.h>
#include <qwt3d_plot.h>

#include <QBuffer>
#include <QPdfWriter>
#include <QSvgGenerator>

namespace {

constexpr int pngScale = 2;
constexpr double pointsPerPixel = 0.75; ///< of the 96 pixels of an inch

void Draw(QWidget *plot, QCPPainter *painter)
{
    if (auto *curve = qobject_cast<QCustomPlot *>(plot)) {
        painter->setMode(QCPPainter::pmVectorized);
        painter->setMode(QCPPainter::pmNoCaching);
        curve->toPainter(painter, plot->width(), plot->height());
    } else if (auto *tracks = qobject_cast<Qwt3D::Plot3D *>(plot)) {
        painter->drawImage(QRect(QPoint(), plot->size()), tracks->grabFrameBuffer());
    }
}

QByteArray Png(QWidget *plot)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (auto *curve = qobject_cast<QCustomPlot *>(plot))
        curve->toPixmap(plot->width(), plot->height(), pngScale).save(&buffer, "PNG");
    else if (auto *tracks = qobject_cast<Qwt3D::Plot3D *>(plot))
        tracks->grabFrameBuffer().save(&buffer, "PNG");
    return bytes;
}

QByteArray Svg(QWidget *plot)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setSize(plot->size());
    generator.setViewBox(QRect(QPoint(), plot->size()));
    QCPPainter painter(&generator);
    Draw(plot, &painter);
    painter.end();
    return bytes;
}

QByteArray Pdf(QWidget *plot)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(QSizeF(plot->size()) * pointsPerPixel, QPageSize::Point));
    writer.setPageMargins(QMarginsF());
    QCPPainter painter(&writer);
    painter.setWindow(plot->rect());
    Draw(plot, &painter);
    painter.end();
    return bytes;
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

QByteArray PlotPicture(QWidget *plot, PlotForm form)
{
    switch (form) {
    case PlotForm::Png: return Png(plot);
    case PlotForm::Svg: return Svg(plot);
    case PlotForm::Pdf: break;
    }
    return Pdf(plot);
}
