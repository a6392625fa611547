// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "objectcount.h"

#include <QAbstractTableModel>

/// The objects that were counted, one a row, in pixels or, when the size of a pixel is known, in its unit. Sorted by any
/// column through the data of SortRole. GUI thread.
class ObjectTable : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Number, Area, CentroidX, CentroidY, MeanIntensity, Diameter, Perimeter, Circularity, ColumnCount };
    static constexpr int SortRole = Qt::UserRole; ///< double

    explicit ObjectTable(QObject *parent = nullptr);

    const QVector<CountedObject> &Objects() const { return m_objects; }
    void SetObjects(const QVector<CountedObject> &objects);
    /// Length of a pixel's side in `unit`; 0: not known, lengths are pixels.
    void SetPixelSize(double size, const QString &unit);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    /// One line a row after a line with the headings, UTF-8; the decimal mark is a point.
    QByteArray Csv() const;

private:
    QString LengthUnit() const;
    QString Heading(int column) const;
    double Value(int row, int column) const;

    QVector<CountedObject> m_objects;
    double m_pixelSize = 0;
    QString m_unit;
};
