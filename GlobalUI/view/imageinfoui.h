// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>
#include <QPoint>
#include <QPointF>
#include <QString>

class QHBoxLayout;
class QLabel;
class QLineEdit;

/// The translucent strip along the bottom of a picture view: mouse position, size, name, pixel
/// value, zoom, rotation and depth scale. Only its zoom box takes the mouse; everything else passes
/// through to the view beneath. The stack that owns it places it.
class ImageInfoUI : public QFrame
{
    Q_OBJECT

public:
    /// `showFileName`: the panel of an image file; the live view has no name to show.
    ImageInfoUI(QWidget *parent, bool showFileName);

    /// Size of the picture in pixels; nothing changes when one of them is 0.
    void UpdateImageSize(double width, double height);
    /// A grey value, or a colour triple in brackets.
    void UpdatePixelText(const QString &text);
    /// In picture pixels.
    QPointF GetMousePosition() const;

public slots:
    void slotResetImageInfo();
    /// 0 or less: the picture has no depth scale.
    void slotUpdateDepthScale(double scale);
    void slotUpdateFileName(QString text);
    /// 1.0 shows as 100.00%.
    void slotUpdateScaleFactor(double value);
    void slotUpdateRotateDegree(int value);
    void slotUpdateImageSize(QString text);
    void slotUpdatePixelInfo(QPointF pos, QString rgbInfo);
    /// Takes mouse events while `point` is over the zoom box; lets them pass otherwise. In the coordinates of the
    /// panel's parent, but of a view inside that when it is what calls.
    void slotEnableScaleFactor(QPoint point);

signals:
    /// The scale factor the user typed, at most 32; 1.0 for 100 %.
    void signalSetZoomRatio(double value);

protected:
    void mouseMoveEvent(QMouseEvent *event) override;

private slots:
    void on_lineEditZoom_returnPressed();
    void on_lineEditZoom_editingFinished();
    void on_lineEditZoom_cursorPositionChanged(int arg1, int arg2);

private:
    struct LabelPair
    {
        QLabel *caption = nullptr;
        QLabel *value = nullptr;

        void SetVisible(bool visible);
    };

    void BuildForm(bool showFileName);
    LabelPair AddPair(QHBoxLayout *row, const char *captionName, const QString &caption, const char *valueName);
    void AddZoomBox(QHBoxLayout *row);
    void ApplyTypedZoom();
    void SetRestingStyle();

    QFrame *m_frame = nullptr;
    LabelPair m_pos;
    LabelPair m_size;
    LabelPair m_fileName;
    LabelPair m_gray;
    LabelPair m_rgb;
    LabelPair m_rotate;
    LabelPair m_depthScale;
    QLineEdit *m_zoom = nullptr;
    QPointF m_mousePosition;
};
