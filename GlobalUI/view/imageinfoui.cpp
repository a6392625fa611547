// SPDX-License-Identifier: GPL-3.0-or-later
#include "imageinfoui.h"

#include "globalclass.h"
#include "shortfilename.h"
#include "zoomtext.h"

#include <QAbstractScrollArea>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QRegExpValidator>
#include <QSignalBlocker>

#include <algorithm>

namespace {
constexpr int FileNamePanelDesignWidth = 500;
constexpr int LivePanelDesignWidth = 680;
constexpr int LineDesignHeight = 22;
constexpr int PairDesignGap = 10;

/// A caption keeps its distance from the pair before it, and takes the gap along when it is hidden.
QLabel *NewCaption(const char *name, const QString &text, QWidget *parent)
{
    auto *caption = new QLabel(text, parent);
    caption->setObjectName(name);
    caption->setContentsMargins(GlobalClass::GetActualSize(PairDesignGap), 0, 0, 0);
    return caption;
}

/// What a view gives the mouse position in the coordinates of; null when `sender` is no widget in `stack`.
const QWidget *SpaceOf(const QObject *sender, const QWidget *stack)
{
    const auto *scrolled = qobject_cast<const QAbstractScrollArea *>(sender);
    const QWidget *space = scrolled ? scrolled->viewport() : qobject_cast<const QWidget *>(sender);
    return space && stack->isAncestorOf(space) ? space : nullptr;
}
} // namespace

void ImageInfoUI::LabelPair::SetVisible(bool visible)
{
    caption->setVisible(visible);
    value->setVisible(visible);
}

ImageInfoUI::ImageInfoUI(QWidget *parent, bool showFileName)
    : QFrame(parent)
{
    BuildForm(showFileName);

    m_fileName.SetVisible(showFileName);
    m_rgb.SetVisible(false);
    m_rotate.SetVisible(false);
    m_depthScale.SetVisible(false);

    setMouseTracking(true);
    m_frame->setMouseTracking(true);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    m_zoom->setValidator(new QRegExpValidator(QRegExp("[0-9\\.%]+$"), m_zoom));
    SetRestingStyle();
}

void ImageInfoUI::BuildForm(bool showFileName)
{
    auto *outer = new QGridLayout(this);
    outer->setObjectName("gridLayout");
    outer->setContentsMargins(0, 0, 0, 0);
    m_frame = new QFrame(this);
    m_frame->setObjectName("FrameInfoUIFrame");
    m_frame->setStyleSheet("color:white;");
    outer->addWidget(m_frame);

    auto *lines = new QGridLayout(m_frame);
    lines->setObjectName("gridLayout_2");
    lines->setContentsMargins(0, 0, 0, 0);
    lines->setSpacing(0);
    // A file's name takes a line of its own, together with the zoom; the live view needs one line.
    auto *pictureLine = new QHBoxLayout;
    auto *pixelLine = new QHBoxLayout;
    for (QHBoxLayout *line : {pictureLine, pixelLine})
        line->setSpacing(GlobalClass::GetActualSize(3));
    lines->addLayout(pixelLine, showFileName ? 1 : 0, 0);
    lines->addLayout(pictureLine, 0, showFileName ? 0 : 1);

    m_pos = AddPair(pixelLine, "label_5", tr("Pos :"), "labelPos");
    m_size = AddPair(pixelLine, "labelSize", tr("Size :"), "labelSizeValue");
    m_fileName = AddPair(pictureLine, "labelFileNameText", tr("Name :"), "labelFileName");
    m_gray = AddPair(pixelLine, "labelGray", tr("Value :"), "labelGrayValue");
    m_rgb = AddPair(pixelLine, "labelRGB", tr("RGB :"), "labelRGBValue");
    AddZoomBox(pictureLine);
    m_rotate = AddPair(pictureLine, "labelRotate", tr("Rotate :"), "labelRotateValue");
    m_depthScale = AddPair(pictureLine, "labelDepthScale", tr("32bit Depth Scale :"), "labelDepthScaleValue");
    pixelLine->addStretch();
    pictureLine->addStretch();

    resize(GlobalClass::GetActualSize(showFileName ? FileNamePanelDesignWidth : LivePanelDesignWidth),
           GlobalClass::GetActualSize(LineDesignHeight) * lines->rowCount());

    QMetaObject::connectSlotsByName(this);
}

ImageInfoUI::LabelPair ImageInfoUI::AddPair(QHBoxLayout *row, const char *captionName, const QString &caption,
                                            const char *valueName)
{
    LabelPair pair{NewCaption(captionName, caption, m_frame), new QLabel(m_frame)};
    pair.value->setObjectName(valueName);
    row->addWidget(pair.caption);
    row->addWidget(pair.value);
    return pair;
}

void ImageInfoUI::AddZoomBox(QHBoxLayout *row)
{
    m_zoom = new QLineEdit(m_frame);
    m_zoom->setObjectName("lineEditZoom");
    m_zoom->setAccessibleName(tr("Zoom"));
    row->addWidget(NewCaption("label_2", tr("Zoom :"), m_frame));
    row->addWidget(m_zoom);
}

void ImageInfoUI::UpdateImageSize(double width, double height)
{
    if (width == 0 || height == 0)
        return;
    m_size.value->setText(QString("%1x%2").arg(int(width)).arg(int(height)));
}

void ImageInfoUI::UpdatePixelText(const QString &text)
{
    const bool isColour = text.contains("(");
    m_rgb.SetVisible(isColour);
    m_gray.SetVisible(!isColour);
    (isColour ? m_rgb : m_gray).value->setText(text);
}

QPointF ImageInfoUI::GetMousePosition() const
{
    return m_mousePosition;
}

void ImageInfoUI::slotResetImageInfo()
{
    m_fileName.value->clear();
    m_rotate.value->clear();
    m_zoom->clear();
    SetRestingStyle(); // clearing moves the cursor, which looks like editing
    m_pos.value->clear();
}

void ImageInfoUI::slotUpdateDepthScale(double scale)
{
    m_depthScale.SetVisible(scale > 0);
    m_depthScale.value->setText(QString::number(scale, 'f', 5));
}

void ImageInfoUI::slotUpdateFileName(QString text)
{
    text = ShortFileName(text);
    m_fileName.value->setText(text);
    setFixedWidth(std::max(m_fileName.caption->width() + GlobalClass::GetStringWidth2(text),
                           GlobalClass::GetActualSize(FileNamePanelDesignWidth)));
    m_fileName.value->setFixedWidth(GlobalClass::GetStringWidth(text));
}

void ImageInfoUI::slotUpdateScaleFactor(double value)
{
    const QString text = ZoomPercentText(value);
    const QSignalBlocker blocker(m_zoom); // a zoom that is shown was not typed
    m_zoom->setText(text);
    SetRestingStyle();
    m_zoom->clearFocus();
    m_zoom->setFixedWidth(GlobalClass::GetStringWidth(text));
}

void ImageInfoUI::slotUpdateRotateDegree(int value)
{
    m_rotate.SetVisible(value != 0);
    m_rotate.value->setText(QString::number(value) + GlobalClass::GetSpecialSymbol(176));
}

void ImageInfoUI::slotUpdateImageSize(QString text)
{
    m_size.value->setText(text);
}

void ImageInfoUI::slotUpdatePixelInfo(QPointF pos, QString rgbInfo)
{
    m_mousePosition = pos;
    m_pos.value->setText(QString("(%1, %2)").arg(int(pos.x())).arg(int(pos.y())));
    UpdatePixelText(rgbInfo);
}

void ImageInfoUI::slotEnableScaleFactor(QPoint point)
{
    if (!parentWidget())
        return; // stands alone: no view beneath it
    // The panel sits at the bottom of its parent.
    const QRect box = m_zoom->geometry();
    const int left = box.x();
    int top = parentWidget()->height() - m_frame->height() + box.y();
    const int bottom = top + box.height();
    if (const QWidget *space = SpaceOf(sender(), parentWidget())) {
        // A view may be larger than the stack and scrolled in it; and the stack lifts the panel a little.
        point = space->mapTo(parentWidget(), point);
        top = std::min(top, m_zoom->mapTo(parentWidget(), QPoint(0, 0)).y());
    }
    const bool isOverBox =
        point.x() >= left && point.x() <= left + box.width() && point.y() >= top && point.y() <= bottom;
    setAttribute(Qt::WA_TransparentForMouseEvents, !isOverBox);
}

void ImageInfoUI::mouseMoveEvent(QMouseEvent *event)
{
    slotEnableScaleFactor(event->pos());
}

void ImageInfoUI::on_lineEditZoom_returnPressed()
{
    ApplyTypedZoom();
}

void ImageInfoUI::on_lineEditZoom_editingFinished()
{
    ApplyTypedZoom();
}

void ImageInfoUI::on_lineEditZoom_cursorPositionChanged(int, int)
{
    m_zoom->setStyleSheet("background-color: rgb(55, 55, 55); border-width: 0;");
}

void ImageInfoUI::ApplyTypedZoom()
{
    emit signalSetZoomRatio(ZoomRatioFromText(m_zoom->text()));
    SetRestingStyle();
    m_zoom->clearFocus();
}

void ImageInfoUI::SetRestingStyle()
{
    m_zoom->setStyleSheet("background: transparent; border-width: 0; border-style: outset;");
}
