// SPDX-License-Identifier: GPL-3.0-or-later
#include "levelsdialog.h"

#include "histogramview.h"
#include "levelbox.h"
#include "levelscurve.h"
#include "levelsmodel.h"
#include "levelstexts.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStandardItemModel>
#include <QVBoxLayout>

namespace {
constexpr double GammaStep = 0.1;
}

LevelsDialog::LevelsDialog(LevelsModel *model, QWidget *parent)
    : QDialog(parent)
    , m_model(model)
    , m_histogram(new HistogramView)
    , m_depth(new QLabel)
    , m_mode(new QComboBox)
    , m_gamma(new QDoubleSpinBox)
{
    setObjectName("LevelsDialog");
    setWindowTitle(tr("Levels"));
    auto *column = new QVBoxLayout(this);
    column->addWidget(m_histogram, 1);
    m_depth->setObjectName("labelLevelsDepth");
    column->addWidget(m_depth);
    AddFields();
    AddButtons();
    slotNoReport(QString());

    connect(m_mode, SIGNAL(activated(int)), this, SLOT(slotModeChosen()));
    connect(m_left, SIGNAL(valueChanged(double)), this, SLOT(slotValueEdited()));
    connect(m_right, SIGNAL(valueChanged(double)), this, SLOT(slotValueEdited()));
    connect(m_gamma, SIGNAL(valueChanged(double)), this, SLOT(slotValueEdited()));
}

void LevelsDialog::AddFields()
{
    auto *form = new QFormLayout;
    static_cast<QVBoxLayout *>(layout())->addLayout(form);
    m_mode->setObjectName("comboBoxLevelsMode");
    for (const QString &mode : LevelsTexts::Modes())
        m_mode->addItem(mode, m_mode->count());
    form->addRow(tr("&Mode"), m_mode);
    m_left = AddValue(form, tr("&Black"), "spinBoxLevelsLeft");
    m_right = AddValue(form, tr("&White"), "spinBoxLevelsRight");

    m_gamma->setObjectName("doubleSpinBoxLevelsGamma");
    m_gamma->setRange(DisplayLevels::LeastGamma, DisplayLevels::MostGamma);
    m_gamma->setSingleStep(GammaStep);
    m_gamma->setKeyboardTracking(false);
    form->addRow(tr("&Gamma"), m_gamma);
}

LevelBox *LevelsDialog::AddValue(QFormLayout *form, const QString &label, const char *name)
{
    auto *value = new LevelBox;
    value->setObjectName(name);
    form->addRow(label, value);
    return value;
}

void LevelsDialog::AddButtons()
{
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Reset | QDialogButtonBox::Close);
    for (QAbstractButton *button : buttons->buttons()) {
        static_cast<QPushButton *>(button)->setAutoDefault(false); // Enter ends a number, not the dialog
        button->setIcon(QIcon());
        button->setFocusPolicy(Qt::TabFocus); // the mode comes first
    }
    connect(buttons, SIGNAL(rejected()), this, SLOT(close()));
    connect(buttons->button(QDialogButtonBox::Reset), SIGNAL(clicked()), this, SLOT(slotReset()));
    layout()->addWidget(buttons);
}

void LevelsDialog::showEvent(QShowEvent *event)
{
    emit signalWatched(true);
    QDialog::showEvent(event);
}

void LevelsDialog::hideEvent(QHideEvent *event)
{
    emit signalWatched(false);
    QDialog::hideEvent(event);
}

void LevelsDialog::slotReport(LevelsReport report)
{
    m_report = report;
    m_histogram->SetCurve(LevelsCurve(report));
    m_depth->setText(LevelsTexts::Kind(report.kind));
    // Samples that are no whole numbers have no full range.
    static_cast<QStandardItemModel *>(m_mode->model())
        ->item(m_mode->findData(int(LevelsMode::FullRange)))
        ->setEnabled(report.kind.IsWhole());
    if (!m_mode->isEnabled()) {
        m_mode->setEnabled(true);
        m_mode->setFocus(); // nothing but the buttons could have it before
    }
    m_gamma->setEnabled(true);
    ShowSetting();
    if (Setting().mode != LevelsMode::Manual)
        ShowLevels();
}

void LevelsDialog::slotNoReport(QString reason)
{
    m_histogram->SetCurve(HistogramCurve());
    m_depth->setText(reason);
    for (QWidget *field : {static_cast<QWidget *>(m_mode), static_cast<QWidget *>(m_gamma),
                           static_cast<QWidget *>(m_left), static_cast<QWidget *>(m_right)})
        field->setEnabled(false);
}

/// Manual levels start from what is seen.
void LevelsDialog::slotModeChosen()
{
    LevelsSetting setting = Setting();
    setting.mode = LevelsMode(m_mode->currentData().toInt());
    if (setting.mode == LevelsMode::Manual) {
        setting.left = m_report.levels.left;
        setting.right = m_report.levels.right;
    }
    Apply(setting);
}

void LevelsDialog::slotValueEdited()
{
    LevelsSetting setting = Setting();
    setting.gamma = m_gamma->value();
    if (setting.mode == LevelsMode::Manual) {
        setting.left = m_left->value();
        setting.right = m_right->value();
    }
    Apply(setting);
}

void LevelsDialog::slotReset()
{
    Apply(LevelsSetting::Default(m_report.kind));
}

LevelsSetting LevelsDialog::Setting() const
{
    return m_model->Setting(m_report.kind);
}

void LevelsDialog::Apply(const LevelsSetting &setting)
{
    m_model->SetSetting(m_report.kind, setting);
    ShowSetting();
}

void LevelsDialog::ShowSetting()
{
    const LevelsSetting setting = Setting();
    const QSignalBlocker mode(m_mode);
    const QSignalBlocker left(m_left);
    const QSignalBlocker right(m_right);
    const QSignalBlocker gamma(m_gamma);
    const bool isManual = setting.mode == LevelsMode::Manual;
    m_mode->setCurrentIndex(m_mode->findData(int(setting.mode)));
    for (LevelBox *value : {m_left, m_right}) {
        value->SetKind(m_report.kind, m_report.axis);
        value->setEnabled(true);
        value->setReadOnly(!isManual);
        value->setButtonSymbols(isManual ? LevelBox::UpDownArrows : LevelBox::NoButtons);
    }
    if (isManual) {
        m_left->setValue(setting.left);
        m_right->setValue(setting.right);
    }
    m_gamma->setValue(setting.gamma);
}

void LevelsDialog::ShowLevels()
{
    const QSignalBlocker left(m_left);
    const QSignalBlocker right(m_right);
    m_left->setValue(m_report.levels.left);
    m_right->setValue(m_report.levels.right);
}
