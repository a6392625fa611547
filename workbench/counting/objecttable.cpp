// SPDX-License-Identifier: GPL-3.0-or-later
#include "objecttable.h"

#include <QLocale>

namespace {

constexpr int Decimals = 3;

bool IsWhole(int column, double value) { return column == ObjectTable::Number || value == double(qint64(value)); }

} // namespace

ObjectTable::ObjectTable(QObject *parent)
    : QAbstractTableModel(parent)
{
}

void ObjectTable::SetObjects(const QVector<CountedObject> &objects)
{
    beginResetModel();
    m_objects = objects;
    endResetModel();
}

void ObjectTable::SetPixelSize(double size, const QString &unit)
{
    beginResetModel();
    m_pixelSize = size;
    m_unit = unit;
    endResetModel();
}

int ObjectTable::rowCount(const QModelIndex &parent) const { return parent.isValid() ? 0 : m_objects.size(); }

int ObjectTable::columnCount(const QModelIndex &parent) const { return parent.isValid() ? 0 : ColumnCount; }

QVariant ObjectTable::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_objects.size())
        return QVariant();
    const double value = Value(index.row(), index.column());
    switch (role) {
    case Qt::DisplayRole:
        return QLocale().toString(value, 'f', IsWhole(index.column(), value) ? 0 : Decimals);
    case Qt::TextAlignmentRole:
        return int(Qt::AlignRight | Qt::AlignVCenter);
    case SortRole:
        return value;
    default:
        return QVariant();
    }
}

QVariant ObjectTable::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole)
        return Heading(section);
    return QVariant();
}

QString ObjectTable::LengthUnit() const { return m_pixelSize > 0 ? m_unit : tr("px"); }

QString ObjectTable::Heading(int column) const
{
    switch (column) {
    case Number:
        return tr("No.");
    case Area:
        return m_pixelSize > 0 ? tr("Area (%1)").arg(m_unit + "\u00b2") : tr("Area (px)");
    case CentroidX:
        return tr("X (%1)").arg(LengthUnit());
    case CentroidY:
        return tr("Y (%1)").arg(LengthUnit());
    case MeanIntensity:
        return tr("Mean");
    case Diameter:
        return tr("Diameter (%1)").arg(LengthUnit());
    case Perimeter:
        return tr("Perimeter (%1)").arg(LengthUnit());
    default:
        return tr("Circularity");
    }
}

double ObjectTable::Value(int row, int column) const
{
    const CountedObject &object = m_objects.at(row);
    const double length = m_pixelSize > 0 ? m_pixelSize : 1;
    switch (column) {
    case Number:
        return row + 1;
    case Area:
        return object.area * length * length;
    case CentroidX:
        return object.centroid.x() * length;
    case CentroidY:
        return object.centroid.y() * length;
    case MeanIntensity:
        return object.meanIntensity;
    case Diameter:
        return object.equivalentDiameter * length;
    case Perimeter:
        return object.perimeter * length;
    default:
        return object.circularity;
    }
}

QByteArray ObjectTable::Csv() const
{
    QStringList cells;
    for (int column = 0; column < ColumnCount; ++column)
        cells << Heading(column);
    QStringList lines{ cells.join(',') };
    for (int row = 0; row < m_objects.size(); ++row) {
        cells.clear();
        for (int column = 0; column < ColumnCount; ++column)
            cells << QString::number(Value(row, column), 'g', QLocale::FloatingPointShortest);
        lines << cells.join(',');
    }
    return (lines.join('\n') + '\n').toUtf8();
}
