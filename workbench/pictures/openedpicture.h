// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "imagemanager.h"
#include "picturecurves.h"
#include "picturerequest.h"

#include <QPointer>

#include <functional>

class PictureDocument;
class PictureLevels;
class PictureLoader;
class ViewMeasuring;
struct SaveRequest;

/// The picture of the image page, or the second one of a comparison: shows one of the opened pictures at a
/// time. What is shown stays until the next is ready, or for good when that cannot be read. Owned by the
/// services. GUI thread.
class OpenedPicture : public ImageManager
{
    Q_OBJECT

public:
    enum Place
    {
        MainPlace,
        ComparePlace
    };

    /// `loader` is borrowed and outlives this object.
    OpenedPicture(PictureLoader *loader, Place place, QObject *parent = nullptr);

    /// Shows a picture of the shelf, the frame that was shown last, as soon as it was read.
    void Show(PictureDocument *document);
    /// What was asked for cannot be shown; what is shown stays.
    void GiveUp(const PictureDocument *document);
    /// The one that is shown; null without one.
    PictureDocument *Document() const;
    /// The one that was asked for last: that which is shown, or will be.
    PictureDocument *WantedDocument() const;
    const LoadedPicture &Shown() const { return m_shown; }
    /// Gives the calibration that its columns, or rows, have instead of that of its file, and that is saved with it; may give none.
    using CalibrationSource = std::function<QVector<MetadataEntry>()>;
    void SetCalibrationSource(const CalibrationSource &source) { m_calibration = source; }
    /// What a save of it asks for, but for the target; without what is only tried.
    SaveRequest SaveOfShown(bool allFrames) const;
    void SaveAs(const QString &target, bool allFrames);
    /// The profile through the point that was picked last, in the units of the file; empty when none was.
    std::vector<double> Profile(bool alongRow) const;
    /// Where a sample of it is saturated, see PictureCurves::Saturated().
    std::vector<quint8> SaturatedInProfile(bool alongRow) const { return m_curves.Saturated(m_shown.samples, alongRow); }
    bool IsProfileSaturated(bool alongRow) const;
    /// The rows, or columns, that it is the mean of.
    ProfileBand LinesOfProfile(bool alongRow) const;

    /// Shows what a step of processing would make of the picture; none ends it. Ends by itself when another picture is
    /// shown or the user begins to crop.
    void Preview(const ProcessSettings &settings);
    /// Makes what is tried a step that can be undone, `text`, as soon as it is shown.
    void ApplyPreview(const QString &text);
    /// Counts and marks the objects of what is shown, until it is told otherwise or another picture is shown.
    void Count(const std::optional<CountSettings> &settings);
    /// It is shown in its own colours, whatever the palette.
    bool IsColour() const;
    /// How many frames can be browsed.
    int FrameCount() const { return m_frameCount; }

    void ClearAll() override;
    void LineProfileMouseMoveEvent(QMouseEvent *event) override;
    MeasureManager *GetMeasureManager() const override;
    QSize GetImageSize() const override;
    QString GetFileName() const override;

    QString GetFileInfo() const override;
    QString GetImageSizeString() const override;
    /// Of the pixel under the mouse.
    QString GetPixelString() const override;
    QString GetExpansionArea() const override;
    bool IsNonImage() const override;
    bool IsSenImage() const override;
    bool Is32BitMat() const override;
    int GetRotateDegree() const override;
    ImageCore *GetImageCore() const override;
    void SetImage(int index) override;
    void DrawImage() override;
    void CloseImage() override;
    void SetProcessType(int type) override;
    void SetAdjustApply(int type) override;
    void ConnectWidthDrawView(QObject *view, bool spectrum) override;
    void GetIntensityCurveHistogramData(QPointF scenePos, QRectF region, int type) override;

public slots:
    void slotFinishSetBrush() override;
    void slotRotateImage(int type) override;
    void slotSaveImageAs() override;
    void slotImageCrop() override;
    void slotImageInfo() override;
    void slotCrop(int x, int y, int width, int height, bool apply) override;
    void slotNewImageCopy(void *image) override;
    void slotMouseMoveEvent(QMouseEvent *event) override;
    void slotMousePressEvent(QMouseEvent *event, QPointF scenePos) override;
    void slotMouseReleaseEvent(QMouseEvent *event) override;
    void slotMouseDoubleClickEvent(QMouseEvent *event) override;
    /// The levels were changed: makes the picture anew.
    void slotLevelsChanged();
    /// Neighbouring lines that a curve is the mean of.
    void slotSetCurveLines(int lines);
    /// Another page shows the curves, or the same one wants them once more.
    void slotShowCurvesAgain() { AnnounceCurves(); }
    /// The frame browser is that of the active picture, at first the main one; only that tells it of its frames.
    void slotActiveImageChanged(QObject *image);

signals:
    /// A frame for the views.
    void signalShowPicture(QImage image);
    /// A picture, or another one than before, is on the screen.
    void signalShown();
    void signalFailed(PictureDocument *document, QString error);
    /// What the columns of Shown() mean, or which of its file they are, may be another.
    void signalColumnsChanged();
    /// The picture that was asked for will not come.
    void signalGivenUp();
    /// The user wants to say where to save what is shown, or to read about it.
    void signalSaveAsWanted();
    void signalInformationWanted();
    /// What is tried is on the screen, or `error` says why not.
    void signalPreviewed(QString error);
    /// Nothing is tried any more, though nobody asked for that.
    void signalPreviewEnded();
    /// What is tried is to be applied.
    void signalApplyWanted();
    /// The objects of what is shown were counted.
    void signalCounted();
    /// The counting is left.
    void signalProcessingEnded();
    /// A sentence for the status bar.
    void signalMessage(QString text);

private slots:
    void slotLoaded(const LoadedPicture &picture);
    void slotEdited();
    void slotRenamed();
    void slotMouseAt(QPointF scenePos);
    void slotReadPixel();

private:
    void Request(PictureDocument *document, int frame);
    void Take(const LoadedPicture &picture);
    void AnnounceDocument();
    void AnnounceFrame();
    void AnnounceCurves();
    void TellFrameBrowser();
    void PickMiddle(bool isOtherSize);
    void AnnounceSpectrum(bool isOther, bool isOtherSize);
    void Follow(PictureDocument *document);
    void Settle(bool isOther);
    void FailPreview(const QString &error);
    void FinishApply();
    void EndTrials();
    void Forget();

    PictureLoader *m_loader;
    const Place m_place;
    ViewMeasuring *m_measuring;
    PictureLevels *m_levels;
    PictureCurves m_curves;
    QPointer<PictureDocument> m_document;
    QPointer<PictureDocument> m_wanted;
    int m_wantedFrame = 0;
    bool m_isBrowsed;
    bool m_isTellingBrowser = false;
    quint64 m_wantedTicket = 0;
    LoadedPicture m_shown;
    ProcessSettings m_preview; ///< of m_document
    CalibrationSource m_calibration;
    QString m_applyText;       ///< of the step that the preview becomes when it is shown; empty: it does not
    std::optional<CountSettings> m_count; ///< of m_document
    SampleType m_settledType = SampleType::U8; ///< without what is only tried
    int m_frameCount = 0;                      ///< likewise
    QPointF m_mousePos; ///< picture pixels
};
