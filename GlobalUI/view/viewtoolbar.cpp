// SPDX-License-Identifier: GPL-3.0-or-later
#include "viewtoolbar.h"

#include "globalclass.h"
#include "globalnotify.h"
#include "viewcodes.h"

#include <QKeySequence>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>

namespace {
constexpr int ButtonDesignSize = 35;
constexpr int StripDesignSize = 10;
/// The hide button and the six buttons that are always there.
constexpr int FixedRows = 7;
} // namespace

ViewToolBar::ViewToolBar(QWidget *parent, bool isCamera)
    : QFrame(parent)
{
    BuildForm();
    m_buttons[Rotate90]->setToolTip(tr("Rotate") + " 90" + GlobalClass::GetSpecialSymbol(176));
    NameButtons();

    m_buttons[SaveAs]->setVisible(!isCamera);
    m_buttons[Crop]->setVisible(!isCamera);
    m_buttons[ImageInfo]->hide();
    m_buttons[CloseCompare]->hide();

    setFixedWidth(GlobalClass::GetActualSize(ButtonDesignSize));
    SetShortcuts();

    const int strip = GlobalClass::GetActualSize(StripDesignSize);
    for (Button button : {ShowBar, HideBar}) {
        m_buttons[button]->setFixedHeight(strip);
        m_buttons[button]->setIconSize(QSize(strip, strip));
    }
    m_buttons[ShowBar]->hide();
    UpdateHeight();
}

void ViewToolBar::BuildForm()
{
    static const struct
    {
        Button button;
        const char *name;
        const char *toolTip;
    } rows[] = {
        {ShowBar, "pushButtonShow", QT_TR_NOOP("Tool Bar")},
        {HideBar, "pushButtonHide", ""},
        {ZoomIn, "pushButtonZoomIn", QT_TR_NOOP("Zoom In")},
        {ZoomOut, "pushButtonZoomOut", QT_TR_NOOP("Zoom Out")},
        {Fit, "pushButtonFit", QT_TR_NOOP("Fit")},
        {OneToOne, "pushButton1vs1", QT_TR_NOOP("1 : 1")},
        {BlackBackground, "pushButtonBlackBackground", QT_TR_NOOP("Black Background")},
        {FullScreen, "pushButtonFullScreen", QT_TR_NOOP("Full Screen")},
        {HorizontalMirror, "pushButtonHorizontalMirror", QT_TR_NOOP("Horizontal Flip")},
        {VerticalMirror, "pushButtonVerticalMirror", QT_TR_NOOP("Vertical Flip")},
        {Rotate90, "pushButtonRotate90", ""},
        {SaveAs, "pushButtonSaveAs", QT_TR_NOOP("Save Image As...")},
        {Crop, "pushButtonCrop", QT_TR_NOOP("Image Crop")},
        {ImageInfo, "pushButtonImageInfo", QT_TR_NOOP("Image Info")},
        {CloseCompare, "pushButtonCloseCompare", QT_TR_NOOP("Close Compare")},
    };

    setWindowTitle(tr("Form"));
    resize(52, 498);
    auto *outer = new QVBoxLayout(this);
    outer->setSpacing(0);
    outer->setContentsMargins(0, 0, 0, 0);
    m_column = new QWidget(this);
    m_column->setObjectName("widget");
    auto *column = new QVBoxLayout(m_column);
    column->setObjectName("verticalLayout_2");
    column->setSpacing(0);
    column->setContentsMargins(0, 0, 0, 0);

    for (const auto &row : rows) {
        const bool isShow = row.button == ShowBar;
        auto *button = new QPushButton(isShow ? this : m_column);
        button->setObjectName(row.name);
        button->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
        button->setFocusPolicy(Qt::TabFocus); // a click leaves the keys to the tool at work over the picture
        if (*row.toolTip)
            button->setToolTip(tr(row.toolTip));
        (isShow ? outer : column)->addWidget(button);
        m_buttons[row.button] = button;
    }
    column->addStretch();
    outer->addWidget(m_column);

    QMetaObject::connectSlotsByName(this);
}

/// They show icons only; before their tool tips get the keys, which are told apart from a name.
void ViewToolBar::NameButtons()
{
    for (QPushButton *button : m_buttons)
        button->setAccessibleName(button->toolTip());
    m_buttons[ShowBar]->setAccessibleName(tr("Show the Tool Bar"));
    m_buttons[HideBar]->setAccessibleName(tr("Hide the Tool Bar"));
}

void ViewToolBar::SetShortcuts()
{
    static const struct
    {
        Button button;
        const char *key;
    } rows[] = {
        {ZoomIn, "Ctrl++"},
        {ZoomIn, "Ctrl+="}, // a button has one shortcut: this one stays
        {ZoomOut, "Ctrl+-"},
        {OneToOne, "Ctrl+O"},
        {Fit, "Ctrl+F"},
        {BlackBackground, "Ctrl+B"},
        {FullScreen, "Ctrl+S"},
        {HorizontalMirror, "Ctrl+H"},
        {VerticalMirror, "Ctrl+V"},
        {Rotate90, "Ctrl+R"},
        {SaveAs, ""},
        {Crop, ""},
        {ImageInfo, ""},
        {CloseCompare, ""},
    };

    const int size = GlobalClass::GetActualSize(ButtonDesignSize);
    for (const auto &row : rows) {
        QPushButton *button = m_buttons[row.button];
        button->setFixedSize(size, size);
        button->setIconSize(QSize(size, size));
        const QString key = row.key;
        if (key.isEmpty())
            continue;
        button->setShortcut(QKeySequence(key));
        button->setToolTip(button->toolTip() + "(" + key + ")");
    }

    QPushButton *zoomIn = m_buttons[ZoomIn];
    auto *secondKey = new QShortcut(QKeySequence("Ctrl++"), zoomIn, nullptr, nullptr, Qt::WindowShortcut);
    connect(secondKey, SIGNAL(activated()), zoomIn, SLOT(click()));
}

void ViewToolBar::SetCloseCompareVisible(bool visible)
{
    SetButtonVisible(CloseCompare, visible);
}

void ViewToolBar::SetHorizontalMirrorVisible(bool visible)
{
    SetButtonVisible(HorizontalMirror, visible);
}

void ViewToolBar::SetVerticalMirrorVisible(bool visible)
{
    SetButtonVisible(VerticalMirror, visible);
}

void ViewToolBar::SetRotateVisible(bool visible)
{
    SetButtonVisible(Rotate90, visible);
}

void ViewToolBar::SetRotateEnabled(bool enabled)
{
    m_buttons[Rotate90]->setEnabled(enabled);
}

void ViewToolBar::slotSetImageInfoButtonVisible(bool visible)
{
    SetButtonVisible(ImageInfo, visible);
}

void ViewToolBar::SetButtonVisible(Button button, bool visible)
{
    m_buttons[button]->setVisible(visible);
    UpdateHeight();
}

void ViewToolBar::SetFolded(bool folded)
{
    m_column->setVisible(!folded);
    m_buttons[ShowBar]->setVisible(folded);
    UpdateHeight();
    emit signalUpdatePos();
}

void ViewToolBar::UpdateHeight()
{
    const int strip = GlobalClass::GetActualSize(StripDesignSize);
    if (m_column->isHidden()) {
        setFixedHeight(strip);
        return;
    }
    const auto optional = {HorizontalMirror, VerticalMirror, Rotate90, SaveAs, Crop, ImageInfo, CloseCompare};
    const auto shown = std::count_if(optional.begin(), optional.end(),
                                     [this](Button button) { return !m_buttons[button]->isHidden(); });
    setFixedHeight(strip + (FixedRows + int(shown)) * GlobalClass::GetActualSize(ButtonDesignSize));
}

void ViewToolBar::on_pushButtonShow_clicked()
{
    SetFolded(false);
}

void ViewToolBar::on_pushButtonHide_clicked()
{
    SetFolded(true);
}

void ViewToolBar::on_pushButtonZoomIn_clicked()
{
    emit signalSetZoomType(ZoomTypeIn);
}

void ViewToolBar::on_pushButtonZoomOut_clicked()
{
    emit signalSetZoomType(ZoomTypeOut);
}

void ViewToolBar::on_pushButton1vs1_clicked()
{
    emit signalSetZoomType(ZoomTypeOneToOne);
}

void ViewToolBar::on_pushButtonFit_clicked()
{
    emit signalSetZoomType(ZoomTypeFit);
}

void ViewToolBar::on_pushButtonBlackBackground_clicked()
{
    GlobalNotifyObserver(NotifyBlackBackground, nullptr);
}

void ViewToolBar::on_pushButtonFullScreen_clicked()
{
    GlobalNotifyObserver(NotifyFullScreen, nullptr);
}

void ViewToolBar::on_pushButtonHorizontalMirror_clicked()
{
    emit signalRotateImage(FlipHorizontal);
}

void ViewToolBar::on_pushButtonVerticalMirror_clicked()
{
    emit signalRotateImage(FlipVertical);
}

void ViewToolBar::on_pushButtonRotate90_clicked()
{
    emit signalRotateImage(RotateBy90);
}

void ViewToolBar::on_pushButtonSaveAs_clicked()
{
    emit signalSaveAs();
}

void ViewToolBar::on_pushButtonCrop_clicked()
{
    emit signalCrop();
}

void ViewToolBar::on_pushButtonImageInfo_clicked()
{
    emit signalImageInfo();
}

void ViewToolBar::on_pushButtonCloseCompare_clicked()
{
    emit signalCloseCompare();
}
