// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QPointF>
#include <QRectF>
#include <QVector>
#include <QWidget>

#include <memory>

class CrossItem;
class DrawAreaItem;
class GradientColorLayoutItem;
class IntensityCurveHorizontal;
class IntensityCurveVertical;
class QVBoxLayout;
class RulerBarHorizontal;
class RulerBarVertical;
class SpectrumDrawFrameBase;
class SpectrumDrawViewBase;

/// The page that shows the spectrum image among its aids: colour bar with grey levels above it, column
/// profile and row ruler to its left, column ruler and row profile below it, a cross at the picked point.
/// It owns no data: it sizes the aids to the image, shows those that the use area has, hands picked points
/// to the services and feeds the curves. A spectrum stack owns and connects it. GUI thread.
class SpectrumView : public QWidget
{
    Q_OBJECT

public:
    explicit SpectrumView(QWidget *parent);
    ~SpectrumView() override;

    /// The value ranges of this object show on the two rulers: those of the live picture, or those of
    /// an opened one. It has the signals of DisplayModeManager.
    void ConnectLiveRanges(QObject *sender);
    void ConnectImageRanges(QObject *sender);
    SpectrumDrawViewBase *GetDrawView() const;
    /// The page shows an opened picture instead of the live one.
    void SetStaticMode(bool staticMode) { m_staticMode = staticMode; }
    /// The visible part that came with the last picked point, as in SlotPressPosChange().
    QRectF GetLastRect() const { return m_lastRect; }
    /// No size of the image was reported yet.
    bool IsFirstShow() const { return m_firstShow; }

signals:
    void sglUpdateCurve(void *param);
    void SignalDisplayModeUpdate();

public slots:
    /// The size (screen pixels) of the image: the aids take theirs from it.
    void SlotImageViewChange(QSize size);
    /// A picked point, picture pixels; `newRectf` is the visible part: left, top, right and bottom as
    /// fractions, the last two in the width and height slots.
    void SlotPressPosChange(QPointF point, QRectF newRectf);
    /// A drag, in picture pixels: press (true, true), move (false, false), release (true, false).
    void SlotDrawArea(QPointF point, bool addFlag, bool start);
    /// A SpectrumCurvePayload.
    void SlotUpdateCurve(void *param);
    void SlotDisplayModeUpdate();
    /// The samples are read during the call only.
    void SlotUpdateHorizontalCurve(int *data, int size, int offset, int count);
    void SlotUpdateVerticalCurve(int *data, int size, int offset, int count);
    void SlotUpdateLevel(int leftLevel, int rightLevel);
    void SlotPressPosChangeStatic(QPointF point, QRectF newRectf, bool getSpectrumFlag);
    void SlotSpectrumUIChange();
    void slotResetImageInfo();
    void SlotPseudoColorsChanged(QVector<QColor> colors);
    void SlotSpectralPropertyChanged();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void AddColorRows();
    void AddImageRow();
    void AddLowerRow(QWidget *item);
    void ConnectImageView();
    void ConnectRanges(QObject *sender, const char *horizontalSignal, const char *verticalSignal);

    /// The rulers count in the pixels of a picture of this size.
    void SetRulerSize(const QSize &pictureSize);
    void PlaceLowerRows();
    void HideEverything();
    void ShowWhatIsWanted();
    void HideWhatIsUnwanted();
    void MoveCross(const QPointF &point);
    void ApplyLinePen();

    SpectrumDrawFrameBase *m_frame = nullptr;
    IntensityCurveVertical *m_verticalCurve = nullptr;
    IntensityCurveHorizontal *m_horizontalCurve = nullptr;
    RulerBarVertical *m_verticalRuler = nullptr;
    RulerBarHorizontal *m_pixelRuler = nullptr;
    RulerBarHorizontal *m_grayRuler = nullptr;
    GradientColorLayoutItem *m_colorBar = nullptr;
    CrossItem *m_cross = nullptr;             ///< the scene owns it
    std::unique_ptr<DrawAreaItem> m_drawArea; ///< of the last drag; in the scene while it lasts
    QVBoxLayout *m_layout = nullptr;
    QRectF m_lastRect{ 0, 0, 1, 1 };
    bool m_firstShow = true;
    bool m_staticMode = false;
};
