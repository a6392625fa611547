// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrumzoomui.h"

#include "globalclass.h"
#include "restyle.h"
#include "spectrumuimanager.h"

#include <QPushButton>
#include <QVBoxLayout>

namespace {

void MakeSquare(QPushButton *button)
{
    const int side = GlobalClass::GetActualSize(30);
    const int iconSide = GlobalClass::GetActualSize(20);
    button->setFixedSize(side, side);
    button->setIconSize(QSize(iconSide, iconSide));
}

} // namespace

SpectrumZoomUI::SpectrumZoomUI(QWidget *parent, bool withAutoButton)
    : QWidget(parent)
    , m_withAutoButton(withAutoButton)
{
    BuildForm();
    const QList<QPushButton *> buttons = findChildren<QPushButton *>();
    for (QPushButton *button : buttons) {
        if (button != m_auto || m_withAutoButton)
            MakeSquare(button);
    }
    if (m_withAutoButton) {
        m_auto->setChecked(SpectrumUIManager::GetInstance()->GetZoomAutoFlag());
        connect(SpectrumUIManager::GetInstance(), SIGNAL(SignalZoomAutoFlagChange()), this,
                SLOT(SlotDisplayModePropertyChange()));
    }
    m_auto->setVisible(m_withAutoButton);
}

void SpectrumZoomUI::BuildForm()
{
    setObjectName("SpectrumZoomUI");
    resize(73, 225);
    auto *column = new QVBoxLayout(this);
    column->setObjectName("verticalLayout");
    column->setContentsMargins(1, 9, 1, column->contentsMargins().bottom());
    column->setSpacing(0); // the plots give the bar just the height of its buttons
    m_auto = AddButton(column, "pushButtonRescaleAuto", tr("Automatic Range"));
    m_auto->setCheckable(true);
    AddButton(column, "pushButton2DHZoomIn", tr("Zoom In Horizontally"));
    AddButton(column, "pushButton2DHZoomOut", tr("Zoom Out Horizontally"));
    AddButton(column, "pushButton2DZoomIn", tr("Zoom In Vertically"));
    AddButton(column, "pushButton2DZoomOut", tr("Zoom Out Vertically"));
    AddButton(column, "pushButton2DScaleReset", tr("Reset Zoom"));

    QMetaObject::connectSlotsByName(this);
}

QPushButton *SpectrumZoomUI::AddButton(QVBoxLayout *column, const char *name, const QString &spokenName)
{
    auto *button = new QPushButton(this);
    button->setObjectName(name);
    button->setAccessibleName(spokenName);
    column->addWidget(button);
    return button;
}

void SpectrumZoomUI::SlotDisplayModePropertyChange()
{
    const bool automatic = SpectrumUIManager::GetInstance()->GetZoomAutoFlag();
    m_auto->setChecked(automatic);
    RenameAndRestyle(m_auto, automatic ? "pushButtonRescaleAuto" : "pushButtonAutoRescaleClose");
}

void SpectrumZoomUI::on_pushButton2DZoomIn_clicked(bool)
{
    SpectrumUIManager::GetInstance()->SetZoomAutoFlag(false);
    emit SignalZoomIn();
}

void SpectrumZoomUI::on_pushButton2DZoomOut_clicked(bool)
{
    SpectrumUIManager::GetInstance()->SetZoomAutoFlag(false);
    emit SignalZoomOut();
}

void SpectrumZoomUI::on_pushButton2DScaleReset_clicked(bool)
{
    SpectrumUIManager::GetInstance()->SetZoomAutoFlag(true);
    emit SignalZoomReset();
}

void SpectrumZoomUI::on_pushButton2DHZoomIn_clicked(bool)
{
    SpectrumUIManager::GetInstance()->SetZoomAutoFlag(false);
    emit SignalHorizontalZoomIn();
}

void SpectrumZoomUI::on_pushButton2DHZoomOut_clicked(bool)
{
    SpectrumUIManager::GetInstance()->SetZoomAutoFlag(false);
    emit SignalHorizontalZoomOut();
}

void SpectrumZoomUI::on_pushButtonRescaleAuto_clicked(bool checked)
{
    SpectrumUIManager::GetInstance()->SetZoomAutoFlag(checked);
    emit SignalZoomAuto();
    SlotDisplayModePropertyChange();
}
