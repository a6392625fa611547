// SPDX-License-Identifier: GPL-3.0-or-later
#include "calibrationdialog.h"

#include "calibrationmodel.h"
#include "calibrationplot.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTableWidget>

#include <algorithm>
#include <cmath>

namespace {

enum Column { PixelColumn, WavelengthColumn, LampColumn, ResidualColumn, ColumnCount };

constexpr double mostNm = 20000;

QDoubleSpinBox *NumberField(const char *name, double most, int decimals)
{
    auto *field = new QDoubleSpinBox; // reparented by its row
    field->setObjectName(name);
    field->setRange(0, most);
    field->setDecimals(decimals);
    return field;
}

/// Without marks of thousands and without a minus before a zero.
QString Number(double value, int decimals)
{
    QLocale plain;
    plain.setNumberOptions(QLocale::OmitGroupSeparator);
    const double half = 0.5 * std::pow(10.0, -decimals);
    return plain.toString(std::abs(value) < half ? 0.0 : value, 'f', decimals);
}

QTableWidgetItem *Cell(const QString &text, bool editable)
{
    auto *item = new QTableWidgetItem(text);
    item->setFlags(item->flags().setFlag(Qt::ItemIsEditable, editable));
    return item;
}

QBoxLayout *AddRow(QWidget *box)
{
    auto *row = new QHBoxLayout(box);
    row->setContentsMargins(0, 0, 0, 0);
    return row;
}

} // namespace

CalibrationDialog::CalibrationDialog(CalibrationModel *model, const Source &source, QWidget *parent)
    : QDialog(parent)
    , m_model(model)
    , m_take(source)
    , m_first(NumberField("spinBoxFirst", mostNm, 1))
    , m_last(NumberField("spinBoxLast", mostNm, 1))
    , m_degree(new QSpinBox)
    , m_pixel(NumberField("spinBoxPixel", 0, 2))
    , m_nm(new QComboBox)
    , m_table(new QTableWidget(0, ColumnCount))
    , m_plot(new CalibrationPlot(model))
    , m_spectrum(new QLabel)
    , m_verdict(new QLabel)
{
    setObjectName("CalibrationDialog");
    setWindowTitle(tr("Calibrate the Spectrum"));
    auto *column = new QVBoxLayout(this);
    m_spectrum->setObjectName("labelSpectrum");
    m_spectrum->setWordWrap(true);
    column->addWidget(m_spectrum);
    column->addWidget(m_plot, 3);
    column->addWidget(BuildLamps());
    column->addWidget(BuildTable(), 2);
    m_verdict->setObjectName("labelVerdict");
    m_verdict->setWordWrap(true);
    column->addWidget(m_verdict);
    column->addWidget(BuildButtons());

    connect(m_plot, &CalibrationPlot::signalPicked, this, &CalibrationDialog::slotPicked);
    connect(m_model, &CalibrationModel::signalAssigned, this, &CalibrationDialog::slotAssigned);
    connect(m_model, &CalibrationModel::signalChanged, this, &CalibrationDialog::slotShow);
    connect(m_model, &CalibrationModel::signalApplied, this, &CalibrationDialog::slotShow);
    auto *undo = new QShortcut(QKeySequence::Undo, this);
    connect(undo, &QShortcut::activated, m_model, &CalibrationModel::Undo);
    FillLines();
    TakeSpectrum();
}

QWidget *CalibrationDialog::BuildLamps()
{
    auto *box = new QWidget;
    auto *form = new QFormLayout(box);
    form->setContentsMargins(0, 0, 0, 0);
    auto *lamps = new QHBoxLayout;
    for (const Lamp lamp : AllLamps()) {
        auto *check = new QCheckBox(LampName(lamp));
        check->setObjectName("checkBox" + LampName(lamp));
        check->setChecked(m_model->Lamps().contains(lamp));
        connect(check, &QCheckBox::toggled, this, &CalibrationDialog::ChooseLamps);
        lamps->addWidget(check);
        m_lamps << check;
    }
    lamps->addStretch();
    form->addRow(tr("Lamps:"), lamps);

    auto *range = new QHBoxLayout;
    m_first->setValue(m_model->FirstNm());
    m_last->setValue(m_model->LastNm());
    for (QDoubleSpinBox *end : {m_first, m_last}) {
        end->setSpecialValueText(tr("unknown"));
        end->setSuffix(tr(" nm"));
        connect(end, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
                [this] { m_model->SetRange(m_first->value(), m_last->value()); });
        range->addWidget(end);
    }
    m_assign = AddButton(range, "pushButtonAssign", tr("A&ssign Lines by Itself"));
    connect(m_assign, &QPushButton::clicked, this, &CalibrationDialog::Assign);
    range->addStretch();
    form->addRow(tr("First and last pixel, about:"), range);
    form->addRow(tr("Line:"), BuildLine());

    m_degree->setObjectName("spinBoxDegree");
    m_degree->setRange(LeastCalibrationDegree, MostCalibrationDegree);
    connect(m_degree, QOverload<int>::of(&QSpinBox::valueChanged), m_model, &CalibrationModel::SetDegree);
    auto *degree = new QHBoxLayout;
    degree->addWidget(m_degree);
    degree->addStretch();
    form->addRow(tr("Degree of the polynomial:"), degree);
    return box;
}

QWidget *CalibrationDialog::BuildLine()
{
    auto *box = new QWidget;
    QBoxLayout *row = AddRow(box);
    m_pixel->setPrefix(tr("pixel "));
    connect(m_pixel, QOverload<double>::of(&QDoubleSpinBox::valueChanged), m_plot, &CalibrationPlot::SetPicked);
    row->addWidget(m_pixel);
    m_nm->setObjectName("comboBoxWavelength");
    m_nm->setEditable(true);
    m_nm->setInsertPolicy(QComboBox::NoInsert);
    row->addWidget(m_nm);
    auto *add = AddButton(row, "pushButtonAddLine", tr("Add &Line"));
    connect(add, &QPushButton::clicked, this, &CalibrationDialog::AddPoint);
    row->addStretch();
    return box;
}

QWidget *CalibrationDialog::BuildTable()
{
    m_table->setObjectName("tableWidgetPoints");
    m_table->setHorizontalHeaderLabels({tr("Pixel"), tr("Wavelength [nm]"), tr("Lamp"), tr("Residual [pixel]")});
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_table->verticalHeader()->hide();
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    connect(m_table, &QTableWidget::cellChanged, this, &CalibrationDialog::ChangeWavelength);
    auto *remove = new QShortcut(QKeySequence::Delete, m_table);
    remove->setContext(Qt::WidgetShortcut);
    connect(remove, &QShortcut::activated, this, &CalibrationDialog::RemovePoints);
    return m_table;
}

QWidget *CalibrationDialog::BuildButtons()
{
    auto *box = new QWidget;
    QBoxLayout *row = AddRow(box);
    connect(AddButton(row, "pushButtonSpectrum", tr("&New Spectrum")), &QPushButton::clicked, this, &CalibrationDialog::TakeSpectrum);
    connect(AddButton(row, "pushButtonRemove", tr("&Remove Line")), &QPushButton::clicked, this, &CalibrationDialog::RemovePoints);
    m_undo = AddButton(row, "pushButtonUndo", tr("&Undo"));
    connect(m_undo, &QPushButton::clicked, m_model, &CalibrationModel::Undo);
    row->addStretch();
    m_none = AddButton(row, "pushButtonNone", tr("No &Calibration"));
    connect(m_none, &QPushButton::clicked, m_model, &CalibrationModel::TakeAway);
    m_apply = AddButton(row, "pushButtonApply", tr("&Apply"));
    connect(m_apply, &QPushButton::clicked, m_model, &CalibrationModel::Apply);
    connect(AddButton(row, "pushButtonClose", tr("Close")), &QPushButton::clicked, this, &QDialog::close);
    return box;
}

/// Enter in a field presses none of them.
QPushButton *CalibrationDialog::AddButton(QBoxLayout *row, const char *name, const QString &text)
{
    auto *button = new QPushButton(text);
    button->setObjectName(name);
    button->setAutoDefault(false);
    row->addWidget(button);
    return button;
}

void CalibrationDialog::TakeSpectrum()
{
    const Spectrum spectrum = m_take();
    const int dropped = m_model->SetSpectrum(spectrum.values, spectrum.saturated);
    if (dropped > 0)
        m_verdict->setText(tr("This spectrum has other pixels than the one before: its %1 lines, which were not applied, are gone.").arg(dropped));
}

void CalibrationDialog::ChooseLamps()
{
    QVector<Lamp> lamps;
    for (int i = 0; i < m_lamps.size(); ++i) {
        if (m_lamps[i]->isChecked())
            lamps << AllLamps()[i];
    }
    m_model->SetLamps(lamps);
    FillLines();
}

void CalibrationDialog::FillLines()
{
    const QString written = m_nm->currentText();
    QVector<QPair<double, QString>> lines;
    for (const Lamp lamp : m_model->Lamps()) {
        for (const LampLine &line : LinesOf(lamp))
            lines << qMakePair(line.nm, LampName(lamp));
    }
    std::sort(lines.begin(), lines.end());
    m_nm->clear();
    for (const auto &line : qAsConst(lines))
        m_nm->addItem(tr("%1 nm %2").arg(Number(line.first, 3), line.second), line.first);
    m_nm->setEditText(written);
}

void CalibrationDialog::Assign()
{
    m_assign->setEnabled(false); // until the answer
    m_verdict->setText(tr("Lines are being assigned…"));
    m_model->Assign();
}

void CalibrationDialog::slotAssigned(bool found)
{
    m_assign->setEnabled(!m_model->Values().empty());
    if (found)
        m_verdict->setText(VerdictOfAssigned());
    else
        m_verdict->setText(tr("No assignment fits: choose the lamps, say about which wavelengths the ends have, or add lines by hand."));
}

void CalibrationDialog::slotPicked(double pixel)
{
    const double snapped = m_model->Snapped(pixel);
    m_pixel->setValue(snapped);
    const double nm = m_model->ExpectedLine(snapped);
    if (nm > 0)
        m_nm->setCurrentIndex(m_nm->findData(nm));
    m_nm->setFocus();
}

/// One of the list, or a number with or without its unit.
void CalibrationDialog::AddPoint()
{
    const QString written = m_nm->currentText();
    const int listed = m_nm->findText(written);
    bool isNumber = listed >= 0;
    double nm = isNumber ? m_nm->itemData(listed).toDouble() : 0;
    if (!isNumber)
        nm = locale().toDouble(written.trimmed().section(' ', 0, 0), &isNumber);
    if (isNumber && nm > 0)
        m_model->AddPoint(m_pixel->value(), nm);
    else
        m_verdict->setText(tr("Choose a line from the list, or write its wavelength in nanometres."));
}

void CalibrationDialog::ChangeWavelength(int row, int column)
{
    if (m_isFilling || column != WavelengthColumn)
        return;
    bool isNumber = false;
    const double nm = locale().toDouble(m_table->item(row, column)->text(), &isNumber);
    if (isNumber && nm > 0)
        m_model->SetWavelength(row, nm);
    else
        slotShow(); // the old number stays
}

void CalibrationDialog::RemovePoints() { m_model->RemovePoint(m_table->currentRow()); }

void CalibrationDialog::slotShow()
{
    ShowTable();
    const bool hasSpectrum = !m_model->Values().empty();
    m_pixel->setMaximum(std::max(0, m_model->Width() - 1));
    m_spectrum->setText(hasSpectrum ? tr("%1 peaks in a spectrum of %2 pixels. Click a peak, choose its line, and add it.")
                                          .arg(m_model->Peaks().size())
                                          .arg(m_model->Values().size())
                                    : tr("There is no spectrum: switch vertical binning on, or open a spectrum and click into it, then "
                                         "press New Spectrum."));
    const QSignalBlocker quiet(m_degree);
    m_degree->setValue(m_model->Degree());
    m_assign->setEnabled(hasSpectrum);
    m_undo->setEnabled(m_model->CanUndo());
    m_apply->setEnabled(m_model->Fit().IsGood());
    m_none->setEnabled(m_model->Applied().IsGood());
    m_verdict->setText(Verdict());
}

void CalibrationDialog::ShowTable()
{
    m_isFilling = true;
    const CalibrationFit &fit = m_model->Fit();
    const QVector<CalibrationPoint> &points = m_model->Points();
    m_table->setRowCount(points.size());
    for (int i = 0; i < points.size(); ++i) {
        const bool isThere = i < fit.residualsPixel.size();
        m_table->setItem(i, PixelColumn, Cell(Number(points[i].pixel, 3), false));
        m_table->setItem(i, WavelengthColumn, Cell(Number(points[i].nm, 4), true));
        m_table->setItem(i, LampColumn, Cell(points[i].LineText(), false));
        m_table->setItem(i, ResidualColumn, Cell(isThere ? Number(fit.residualsPixel[i], 3) : QString(), false));
    }
    m_isFilling = false;
}

QString CalibrationDialog::VerdictOfAssigned() const
{
    const AssignedLines &lines = m_model->Assigned();
    return tr("%1 Left out: peaks broader or narrower than a line: %2, two lines in one: %3, off the curve: %4.")
        .arg(Verdict())
        .arg(lines.oddWidths)
        .arg(lines.blends)
        .arg(lines.outliers);
}

QString CalibrationDialog::Verdict() const
{
    const CalibrationFit &fit = m_model->Fit();
    if (!fit.IsGood())
        return fit.fault;
    const QString residual = Number(fit.rmsPixel, 3);
    const QString residualNm = Number(fit.rmsNm, 4);
    QString verdict = fit.leaveOneOutPixel < 0
        ? tr("Residual %1 pixels (%2 nm) rms; with one more line the error of leaving one out is known.").arg(residual, residualNm)
        : tr("Residual %1 pixels (%2 nm) rms; leaving one out: %3 pixels.").arg(residual, residualNm, Number(fit.leaveOneOutPixel, 3));
    if (m_model->IsApplied())
        verdict = tr("%1 It is applied.").arg(verdict);
    return verdict;
}
