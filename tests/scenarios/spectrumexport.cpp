// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrumexport.h"

#include "runningworkbench.h"

#include <QAction>
#include <QFile>
#include <QFileDialog>
#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QRegularExpression>
#include <QSvgRenderer>
#include <QTest>
#include <QXmlStreamReader>
#include <QtEndian>
#include <qcustomplot.h>

#include <cmath>

namespace {

constexpr int waitMs = 20000;
constexpr int fewestPixels = 300;  ///< of a curve that is drawn across the plot
constexpr int fewestStrokes = 100; ///< of such a curve, in a drawing

/// What is packed in the streams of a page: its drawing, and pictures in it.
QByteArrayList StreamsOf(const QByteArray &pdf)
{
    QByteArrayList streams;
    int from = 0;
    while ((from = pdf.indexOf("\nstream\n", from)) >= 0) {
        from += int(qstrlen("\nstream\n"));
        streams << pdf.mid(from, pdf.indexOf("endstream", from) - from);
    }
    return streams;
}

/// Empty for what is packed in another way.
QByteArray Unpacked(const QByteArray &stream)
{
    QByteArray sized(4, '\0'); // a size, which may be wrong
    qToBigEndian(quint32(stream.size() * 4), sized.data());
    return stream.startsWith('\x78') ? qUncompress(sized + stream) : QByteArray();
}

int Strokes(const QByteArray &drawing)
{
    return QString::fromLatin1(drawing).count(QRegularExpression("^[-0-9.]+ [-0-9.]+ l\\b", QRegularExpression::MultilineOption));
}

QStringList TextsOf(const QByteArray &svg)
{
    QStringList texts;
    QXmlStreamReader reader(svg);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == QLatin1String("text"))
            texts << reader.readElementText().trimmed();
    }
    return texts;
}

} // namespace

int ColouredPixels(const QImage &picture)
{
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            count += picture.pixelColor(x, y).saturation() > 60;
    }
    return count;
}

QVector<QVector<double>> ColumnsOf(const QStringList &lines)
{
    QVector<QVector<double>> columns;
    for (const QString &line : lines) {
        if (line.isEmpty() || line.startsWith('#') || line.startsWith("pixel"))
            continue;
        const QStringList cells = line.split(',');
        columns.resize(cells.size());
        for (int i = 0; i < cells.size(); ++i)
            columns[i] << cells[i].toDouble();
    }
    return columns;
}

SpectrumExport::SpectrumExport(RunningWorkbench *workbench, const QString &folder)
    : m_workbench(workbench)
    , m_folder(folder)
{
}

QFileDialog *SpectrumExport::Open(const QString &action) const
{
    m_workbench->Action(action)->trigger();
    auto *dialog = m_workbench->window.findChild<QFileDialog *>("ExportDialog");
    return dialog && QTest::qWaitForWindowExposed(dialog) ? dialog : nullptr;
}

void SpectrumExport::Accept(QFileDialog *dialog) { QMetaObject::invokeMethod(dialog, "accept"); }

bool SpectrumExport::IsSaved(const QString &name) const
{
    const QString told = QString::fromUtf8("“%1” was saved.").arg(name);
    return QTest::qWaitFor([&] { return m_workbench->StatusText() == told && !m_workbench->window.findChild<QFileDialog *>(); }, waitMs)
           && QFile::exists(m_folder + '/' + name);
}

QByteArray SpectrumExport::Written(const QString &action, const QString &name) const
{
    QFileDialog *dialog = Open(action);
    if (!dialog)
        return {};
    dialog->findChild<QLineEdit *>("fileNameEdit")->setText(m_folder + '/' + name);
    Accept(dialog);
    QFile file(m_folder + '/' + name);
    return IsSaved(name) && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList SpectrumExport::Lines(const QString &action, const QString &name) const
{
    return QString::fromUtf8(Written(action, name)).split('\n');
}

void SpectrumExport::CheckPlots(const QWidget *plot) const
{
    const QImage picture = QImage::fromData(Written("Export Plot…", "plot.png"));
    QCOMPARE(picture.size(), plot->size() * 2);
    QVERIFY2(ColouredPixels(picture) > fewestPixels, qPrintable(QString::number(ColouredPixels(picture))));

    const QByteArray svg = Written("Export Plot…", "plot.svg");
    QSvgRenderer drawing(svg);
    QVERIFY(drawing.isValid());
    QCOMPARE(drawing.viewBox().size(), plot->size());
    QImage drawn(plot->size(), QImage::Format_RGB32);
    drawn.fill(Qt::white);
    QPainter painter(&drawn);
    drawing.render(&painter);
    painter.end();
    QVERIFY2(ColouredPixels(drawn) > fewestPixels, qPrintable(QString::number(ColouredPixels(drawn))));
    QVERIFY(!svg.contains("<image"));
    QVERIFY(TextsOf(svg).contains(qobject_cast<const QCustomPlot *>(plot) ? "Counts" : "Series Position"));

    CheckPage(Written("Export Plot…", "plot.pdf"), plot);
}

/// Lines and texts.
void SpectrumExport::CheckPage(const QByteArray &pdf, const QWidget *plot)
{
    QVERIFY(pdf.startsWith("%PDF-"));
    const QString text = QString::fromLatin1(pdf.constData(), pdf.size()); // with its zeros
    const QRegularExpressionMatch box = QRegularExpression("/MediaBox \\[0 0 ([0-9.]+) ([0-9.]+)\\]").match(text);
    QVERIFY2(std::abs(box.captured(1).toDouble() - plot->width() * 0.75) < 1, qPrintable(box.captured(1)));
    QVERIFY2(std::abs(box.captured(2).toDouble() - plot->height() * 0.75) < 1, qPrintable(box.captured(2)));
    QVERIFY(!text.contains("/Subtype /Image"));
    QVERIFY(text.contains("/Type /Font"));
    int strokes = 0;
    for (const QByteArray &stream : StreamsOf(pdf))
        strokes += Strokes(Unpacked(stream));
    QVERIFY2(strokes > fewestStrokes, qPrintable(QString::number(strokes)));
}

QVector<QPolygonF> SpectrumExport::TracksIn(const QString &name, const QColor &color) const
{
    QVector<QPolygonF> tracks;
    QXmlStreamReader svg(Written("Export Plot…", name));
    QString stroke; // of the group
    while (!svg.atEnd()) {
        if (svg.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (svg.name() == QLatin1String("g"))
            stroke = svg.attributes().value("stroke").toString();
        if (svg.name() != QLatin1String("polyline") || QColor(stroke) != color)
            continue;
        QPolygonF track;
        for (const QString &point : svg.attributes().value("points").toString().split(' ', Qt::SkipEmptyParts))
            track << QPointF(point.section(',', 0, 0).toDouble(), point.section(',', 1).toDouble());
        tracks << track;
    }
    return tracks;
}
