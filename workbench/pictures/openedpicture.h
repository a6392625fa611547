// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "imagemanager.h"
#include "picturerequest.h"

#include <QPointer>

#include <functional>

class OpenedProfiles;
class PictureDocument;
class PictureLevels;
class PictureLoader;
class PictureTrials;
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
    OpenedProfiles *Profiles() const { return m_profiles; }
    PictureTrials *Trials() const { return m_trials; }
    /// Makes what is shown once more, as it is wanted now; not while another picture is on its way.
    void ShowAnew();
    /// What is shown is what was asked for last.
    bool IsUpToDate() const { return m_shown.request.ticket == m_wantedTicket; }
    /// It is shown in its own colours, whatever the palette.
    bool IsColour() const;
    /// How many frames can be browsed.
    int FrameCount() const { return m_frameCount; }

    void ClearAll() override {}
    void LineProfileMouseMoveEvent(QMouseEvent *) override {}
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
    void slotFinishSetBrush() override {}
    void slotRotateImage(int type) override;
    void slotSaveImageAs() override;
    void slotImageCrop() override;
    void slotImageInfo() override;
    void slotCrop(int x, int y, int width, int height, bool apply) override;
    void slotNewImageCopy(void *) override {}
    void slotMouseMoveEvent(QMouseEvent *) override {}
    void slotMousePressEvent(QMouseEvent *, QPointF) override {}
    void slotMouseReleaseEvent(QMouseEvent *) override {}
    void slotMouseDoubleClickEvent(QMouseEvent *) override {}
    /// The levels were changed: makes the picture anew.
    void slotLevelsChanged();
    /// Another page shows the curves, or the same one wants them once more.
    void slotShowCurvesAgain();
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
    void TellFrameBrowser();
    void AnnounceSpectrum(bool isOther, bool isOtherSize);
    void Follow(PictureDocument *document);
    void Settle(bool isOther);
    void Forget();

    PictureLoader *m_loader;
    const Place m_place;
    ViewMeasuring *m_measuring;
    PictureLevels *m_levels;
    OpenedProfiles *m_profiles;
    PictureTrials *m_trials;
    QPointer<PictureDocument> m_document;
    QPointer<PictureDocument> m_wanted;
    int m_wantedFrame = 0;
    bool m_isBrowsed;
    bool m_isTellingBrowser = false;
    quint64 m_wantedTicket = 0;
    LoadedPicture m_shown;
    CalibrationSource m_calibration;
    SampleType m_settledType = SampleType::U8; ///< without what is only tried
    int m_frameCount = 0;                      ///< likewise
    QPointF m_mousePos; ///< picture pixels
};
