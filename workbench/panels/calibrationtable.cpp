// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibrationtable.h"

#include "calibrationmodel.h"
#include "filenametext.h"
#include "wholefile.h"

#include <QLocale>

namespace {

constexpr int PixelDecimals = 3;
constexpr int NmDecimals = 4;

QStandardItem *NumberItem(double value, int decimals)
{
    auto *item = new QStandardItem(QLocale().toString(value, 'f', decimals));
    item->setData(value, Qt::UserRole);
    item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return item;
}

/// The file's text is English, whatever the language.
QStandardItem *LineItem(const CalibrationPoint &point)
{
    auto *item = new QStandardItem(point.LineText());
    item->setData(point.isSaturated ? (point.line + " saturated").trimmed() : point.line, Qt::UserRole);
    return item;
}

} // namespace

CalibrationTable::CalibrationTable(CalibrationModel *calibration, QObject *parent)
    : FieldSource(CalibrationName, parent)
    , m_calibration(calibration)
{
    m_writer.setMaxThreadCount(1);
    connect(calibration, &CalibrationModel::signalApplied, this, &CalibrationTable::Fill);
    Fill();
}

CalibrationTable::~CalibrationTable() { m_writer.waitForDone(); }

void CalibrationTable::Fill()
{
    m_table.clear();
    m_table.setHorizontalHeaderLabels({tr("Pixel"), tr("Wavelength [nm]"), tr("Lamp"), tr("Residual [px]")});
    const QVector<CalibrationPoint> &points = m_calibration->AppliedPoints();
    const CalibrationFit &fit = m_calibration->Applied();
    for (int i = 0; i < points.size() && i < fit.residualsPixel.size(); ++i) {
        m_table.appendRow({NumberItem(points[i].pixel, PixelDecimals), NumberItem(points[i].nm, NmDecimals),
                           LineItem(points[i]), NumberItem(fit.residualsPixel[i], PixelDecimals)});
    }
    emit signalChanged();
}

PanelFields CalibrationTable::Fields() const { return {}; }

QString CalibrationTable::TableNote() const
{
    return tr("Not calibrated: positions are in pixels. Spectrum > Calibrate… (Ctrl+Shift+L) takes the lines of a lamp.");
}

void CalibrationTable::Set(const QString &key, const QVariant &value)
{
    if (key == "saveTable")
        Save(value.toString());
}

/// Numbers have a decimal point, whatever the language.
QByteArray CalibrationTable::Csv() const
{
    QString text = "pixel,wavelength [nm],lamp,residual [pixel]\n";
    for (int row = 0; row < m_table.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < m_table.columnCount(); ++column)
            cells << m_table.item(row, column)->data(Qt::UserRole).toString();
        text += cells.join(',') + '\n';
    }
    return text.toUtf8();
}

void CalibrationTable::Save(const QString &path)
{
    m_writer.start([this, path, bytes = Csv()] {
        const QString fault = WriteWholeFile(path, bytes);
        QMetaObject::invokeMethod(
            this, [this, path, fault] { Tell(path, fault); }, Qt::QueuedConnection);
    });
}

void CalibrationTable::Tell(const QString &path, const QString &fault)
{
    if (fault.isEmpty())
        emit signalMessage(tr("“%1” was saved.").arg(FileNameTextOf(path)));
    else
        emit signalNotSaved(fault);
}
