// SPDX-License-Identifier: GPL-3.0-or-later
#include "cameradialog.h"

#include "cameralink.h"
#include "camerasession.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <cmath>

namespace {

constexpr int RefreshMs = 500;
constexpr double UsPerMs = 1000.0;

void ShowValue(QDoubleSpinBox *box, const ValueRange &range, double value, double unit)
{
    const QSignalBlocker blocker(box);
    box->setRange(range.minimum / unit, range.maximum / unit);
    box->setToolTip(CameraDialog::tr("%1 to %2").arg(range.minimum / unit).arg(range.maximum / unit));
    if (!box->hasFocus() || std::abs(box->value() - value / unit) > 1e-9)
        box->setValue(value / unit);
}

} // namespace

CameraDialog::CameraDialog(CameraLink *link, QWidget *parent)
    : QDialog(parent)
    , m_link(link)
    , m_autoExposure(new QCheckBox(tr("automatic"), this))
    , m_autoGain(new QCheckBox(tr("automatic"), this))
    , m_error(new QLabel(this))
{
    setObjectName("CameraDialog");
    setWindowTitle(tr("Exposure and Gain"));
    auto *column = new QVBoxLayout(this);
    auto *form = new QFormLayout;
    column->addLayout(form);
    m_autoExposure->setObjectName("checkBoxAutoExposure");
    m_autoGain->setObjectName("checkBoxAutoGain");
    m_exposure = AddValue(form, tr("&Exposure"), "doubleSpinBoxExposure", tr(" ms"), m_autoExposure);
    m_exposure->setDecimals(3);
    m_gain = AddValue(form, tr("&Gain"), "doubleSpinBoxGain", QString(), m_autoGain);
    m_rate = AddValue(form, tr("&Frame rate"), "doubleSpinBoxFrameRate", tr(" frames/s"), nullptr);
    m_error->setObjectName("labelCameraError");
    m_error->setWordWrap(true);
    column->addWidget(m_error);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, SIGNAL(rejected()), this, SLOT(close()));
    column->addWidget(buttons);

    connect(m_exposure, SIGNAL(valueChanged(double)), this, SLOT(slotSetExposure()));
    connect(m_gain, SIGNAL(valueChanged(double)), this, SLOT(slotSetGain()));
    connect(m_rate, SIGNAL(valueChanged(double)), this, SLOT(slotSetFrameRate()));
    connect(m_autoExposure, SIGNAL(toggled(bool)), this, SLOT(slotSetAutoExposure(bool)));
    connect(m_autoGain, SIGNAL(toggled(bool)), this, SLOT(slotSetAutoGain(bool)));
    connect(link, SIGNAL(signalStateChanged()), this, SLOT(slotCameraStateChanged()));
    connect(&m_refresh, SIGNAL(timeout()), this, SLOT(slotRefresh()));
    slotCameraStateChanged();
}

/// A value is sent when it is whole, not with each digit.
QDoubleSpinBox *CameraDialog::AddValue(QFormLayout *form, const QString &text, const char *name,
                                       const QString &suffix, QCheckBox *automatic)
{
    auto *box = new QDoubleSpinBox(this);
    box->setObjectName(name);
    box->setSuffix(suffix);
    box->setKeyboardTracking(false);
    box->setMinimumWidth(box->fontMetrics().averageCharWidth() * 24);
    auto *row = new QHBoxLayout;
    row->addWidget(box, 1);
    if (automatic)
        row->addWidget(automatic);
    form->addRow(text, row);
    static_cast<QLabel *>(form->labelForField(row))->setBuddy(box);
    return box;
}

void CameraDialog::slotCameraStateChanged()
{
    m_error->clear();
    UpdateUI();
}

void CameraDialog::slotRefresh()
{
    if (m_link->Session())
        m_link->Session()->Controls().Refresh();
    UpdateUI();
}

void CameraDialog::UpdateUI()
{
    CameraSession *session = m_link->Session();
    for (QWidget *widget :
         { static_cast<QWidget *>(m_exposure), static_cast<QWidget *>(m_gain), static_cast<QWidget *>(m_rate),
           static_cast<QWidget *>(m_autoExposure), static_cast<QWidget *>(m_autoGain) })
        widget->setEnabled(false);
    m_refresh.stop();
    if (!session)
        return;
    const CameraControls &controls = session->Controls();
    ShowValue(m_exposure, controls.ExposureRangeUs(), controls.ExposureUs(), UsPerMs);
    ShowValue(m_gain, controls.GainRange(), controls.Gain(), 1);
    ShowValue(m_rate, controls.FrameRateRange(), controls.FrameRate(), 1);
    const QSignalBlocker exposureBlocker(m_autoExposure);
    const QSignalBlocker gainBlocker(m_autoGain);
    m_autoExposure->setChecked(controls.IsAutoExposure());
    m_autoGain->setChecked(controls.IsAutoGain());
    m_autoExposure->setEnabled(controls.HasAutoExposure());
    m_autoGain->setEnabled(controls.HasAutoGain());
    m_exposure->setEnabled(controls.ExposureRangeUs().IsAdjustable() && !controls.IsAutoExposure());
    m_gain->setEnabled(controls.GainRange().IsAdjustable() && !controls.IsAutoGain());
    m_rate->setEnabled(controls.FrameRateRange().IsAdjustable());
    if (controls.IsAutoExposure() || controls.IsAutoGain())
        m_refresh.start(RefreshMs);
}

void CameraDialog::Show(bool done, const QString &error)
{
    m_error->setText(done ? QString() : error);
    UpdateUI();
}

void CameraDialog::slotSetExposure()
{
    QString error;
    if (m_link->Session())
        Show(m_link->Session()->Controls().SetExposureUs(m_exposure->value() * UsPerMs, &error), error);
}

void CameraDialog::slotSetGain()
{
    QString error;
    if (m_link->Session())
        Show(m_link->Session()->Controls().SetGain(m_gain->value(), &error), error);
}

void CameraDialog::slotSetFrameRate()
{
    QString error;
    if (m_link->Session())
        Show(m_link->Session()->Controls().SetFrameRate(m_rate->value(), &error), error);
}

void CameraDialog::slotSetAutoExposure(bool isAuto)
{
    QString error;
    if (m_link->Session())
        Show(m_link->Session()->Controls().SetAutoExposure(isAuto, &error), error);
}

void CameraDialog::slotSetAutoGain(bool isAuto)
{
    QString error;
    if (m_link->Session())
        Show(m_link->Session()->Controls().SetAutoGain(isAuto, &error), error);
}
