// SPDX-License-Identifier: GPL-3.0-or-later
#include "plotdrawing.h"

#include <QFontMetricsF>
#include <QPaintEngine>
#include <QPainter>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace {

constexpr double PointsPerInch = 72;

/// Reads a page line by line. Its commands end the line; what they are of stands before.
class EpsReader
{
public:
    /// The page is whole.
    bool Read(const QByteArray &eps)
    {
        int from = std::max(0, eps.indexOf("%%EndPageSetup"));
        while (!m_isWhole && from < eps.size()) {
            const int end = eps.indexOf('\n', from);
            ReadLine(eps.mid(from, end - from));
            from = end < 0 ? eps.size() : end + 1;
        }
        return m_isWhole && m_drawing.size.isValid();
    }

    PlotDrawing Drawing() const { return m_drawing; }

private:
    void ReadLine(const QByteArray &line)
    {
        const QList<QByteArray> words = line.split(' ');
        const QByteArray &command = words.last();
        if (line.startsWith('('))
            AddLabel(QString::fromLocal8Bit(line));
        else if (command == "C" && words.size() == 4)
            m_color = QColor::fromRgbF(Part(words[0]), Part(words[1]), Part(words[2]));
        else if (command == "W" && words.size() == 2)
            m_width = words[0].toDouble();
        else if (line.startsWith("newpath 0 0 moveto"))
            TakePage(words);
        else if (words.size() == 3 && (command == "LS" || command == "L" || command == "LE"))
            AddPoint(command == "LS", PointAt(words[0], words[1]));
        else if (command == "showpage")
            m_isWhole = true;
    }

    /// The page is filled first of all: from 0 0 to the right, and then up to the corner.
    void TakePage(const QList<QByteArray> &words)
    {
        const int corner = words.lastIndexOf("lineto") - 5;
        if (m_drawing.size.isValid() || corner < 0)
            return;
        m_drawing.size = QSizeF(words[corner].toDouble(), words[corner + 1].toDouble());
        m_drawing.background = m_color;
    }

    void AddPoint(bool isFirst, const QPointF &point)
    {
        if (isFirst || m_drawing.strokes.empty())
            m_drawing.strokes.push_back({{}, m_color, m_width});
        m_drawing.strokes.back().points << point;
    }

    /// "(text) x y size /font command": the command ends with the place of the anchor, row and column.
    void AddLabel(const QString &line)
    {
        static const QRegularExpression form("^\\((.+)\\) (\\S+) (\\S+) (\\S+) /\\S+ S([BCT]?)([LCR]?)$");
        const QRegularExpressionMatch match = form.match(line);
        if (!match.hasMatch())
            return;
        const QString row = match.captured(5);
        const QString column = match.captured(6);
        Qt::Alignment side = row == "T" ? Qt::AlignTop : row == "C" ? Qt::AlignVCenter : Qt::AlignBottom;
        side |= column == "R" ? Qt::AlignRight : column == "C" ? Qt::AlignHCenter : Qt::AlignLeft;
        m_drawing.labels.push_back({match.captured(1), PointAt(match.captured(2).toLatin1(), match.captured(3).toLatin1()), side,
                                    m_color, match.captured(4).toDouble()});
    }

    /// PostScript counts upwards.
    QPointF PointAt(const QByteArray &x, const QByteArray &y) const
    {
        return {x.toDouble(), m_drawing.size.height() - y.toDouble()};
    }

    static double Part(const QByteArray &word) { return std::clamp(word.toDouble(), 0.0, 1.0); }

    PlotDrawing m_drawing;
    QColor m_color;
    double m_width = 1;
    bool m_isWhole = false;
};

/// Pixels of a long wide line would be worked out for all of it at once, which takes seconds: they get it in pieces, each
/// with the end of the one before, so that the line has no gaps.
void DrawLine(QPainter *painter, const QPolygonF &points)
{
    constexpr int mostPoints = 32;
    const bool isWhole = painter->paintEngine()->type() != QPaintEngine::Raster || points.size() <= mostPoints;
    if (isWhole) {
        painter->drawPolyline(points);
        return;
    }
    for (int first = 0; first + 2 < points.size(); first += mostPoints - 2)
        painter->drawPolyline(points.constData() + first, std::min(mostPoints, points.size() - first));
}

/// Where a text of this size lies that has its anchor at one of its sides.
QRectF BoxAt(const QPointF &anchor, Qt::Alignment side, const QSizeF &size)
{
    QRectF box(anchor, size);
    if (side & Qt::AlignHCenter)
        box.translate(-size.width() / 2, 0);
    else if (side & Qt::AlignRight)
        box.translate(-size.width(), 0);
    if (side & Qt::AlignVCenter)
        box.translate(0, -size.height() / 2);
    else if (side & Qt::AlignBottom)
        box.translate(0, -size.height());
    return box;
}

} // namespace

std::optional<PlotDrawing> PlotDrawing::FromEps(const QByteArray &eps)
{
    EpsReader reader;
    if (!reader.Read(eps))
        return std::nullopt;
    return reader.Drawing();
}

void PlotDrawing::Paint(QPainter *painter, const QFont &font, double dotsPerInch) const
{
    painter->setRenderHint(QPainter::Antialiasing);
    painter->fillRect(QRectF(QPointF(), size), background);
    painter->setBrush(Qt::NoBrush);
    for (const Stroke &stroke : strokes) {
        painter->setPen(QPen(stroke.color, stroke.width, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
        DrawLine(painter, stroke.points);
    }
    for (const Label &label : labels) {
        QFont labelFont = font;
        labelFont.setPixelSize(int(std::lround(label.pointSize * dotsPerInch / PointsPerInch)));
        const QSizeF room = QFontMetricsF(labelFont).size(Qt::TextSingleLine, label.text);
        painter->setFont(labelFont);
        painter->setPen(label.color);
        painter->drawText(BoxAt(label.anchor, label.side, room), Qt::AlignCenter | Qt::TextSingleLine | Qt::TextDontClip, label.text);
    }
}
