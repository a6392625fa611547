// SPDX-License-Identifier: GPL-3.0-or-later
#include "openedpicture.h"

#include "openedprofiles.h"
#include "picturedocument.h"
#include "picturelevels.h"
#include "pictureloader.h"
#include "picturetrials.h"
#include "spectrumuimanager.h"
#include "uiconfigmanager.h"
#include "viewcodes.h"
#include "viewmeasuring.h"

namespace {

enum CropState
{
    NewSelection = 0
};

} // namespace

OpenedPicture::OpenedPicture(PictureLoader *loader, Place place, QObject *parent)
    : ImageManager(parent)
    , m_loader(loader)
    , m_place(place)
    , m_measuring(new ViewMeasuring(this))
    , m_levels(new PictureLevels(this))
    , m_profiles(new OpenedProfiles(m_levels, this))
    , m_trials(new PictureTrials(this))
    , m_isBrowsed(place == MainPlace)
{
    connect(loader, SIGNAL(signalLoaded(LoadedPicture)), this, SLOT(slotLoaded(LoadedPicture)));
    connect(m_profiles, &OpenedProfiles::signalRow, this, &ImageManager::sglUpdateHorizontalCurve);
    connect(m_profiles, &OpenedProfiles::signalColumn, this, &ImageManager::sglUpdateVerticalCurve);
}

// Asking and answering

void OpenedPicture::Show(PictureDocument *document) { Request(document, document->Frame()); }

void OpenedPicture::Request(PictureDocument *document, int frame)
{
    if (document != m_document)
        m_trials->End();
    PictureRequest request;
    request.place = m_place;
    request.file = document->File();
    request.frame = frame;
    request.isPreview = m_trials->IsPreviewing();
    request.edit = document->Edit().Processed(m_trials->Previewed());
    request.count = m_trials->Counting();
    request.range = request.isPreview ? SampleRange() : document->Range(frame);
    request.wantsThumbnail =
        !request.isPreview
        && (document != m_document || m_shown.request.isPreview || request.edit != m_shown.request.edit);
    m_wanted = document;
    m_wantedFrame = frame;
    m_wantedTicket = m_loader->Load(request);
}

void OpenedPicture::slotLoaded(const LoadedPicture &picture)
{
    // While a stack is browsed quickly every frame that was read is shown, though a newer one is wanted
    // already.
    if (picture.request.place != m_place || !m_wanted || picture.request.file.id != m_wanted->File().id)
        return;
    if (picture.error.isEmpty()) {
        Take(picture);
    } else if (picture.request.isPreview) {
        if (picture.request.ticket == m_wantedTicket)
            m_trials->PreviewFailed(picture.error);
    } else if (picture.request.ticket == m_wantedTicket) {
        PictureDocument *failed = m_wanted;
        if (failed != m_document)
            failed->SetFrame(0); // the next time it may be another frame
        GiveUp(failed);
        emit signalFailed(failed, picture.error);
    }
    if (!picture.news.isEmpty())
        emit signalMessage(picture.news);
}

void OpenedPicture::GiveUp(const PictureDocument *document)
{
    if (!document || m_wanted != document)
        return;
    m_wanted = m_document;
    m_wantedFrame = m_shown.request.frame;
    TellFrameBrowser();
    // What was done meanwhile to the one that is shown.
    const bool isOutdated =
        m_document && (m_document->Edit() != m_shown.request.edit || !m_document->Range(m_wantedFrame).IsKnown());
    if (isOutdated && document != m_document)
        Request(m_document, m_wantedFrame);
    emit signalGivenUp();
}

void OpenedPicture::Take(const LoadedPicture &picture)
{
    const bool isOther = m_document != m_wanted;
    const bool isOtherSize = m_shown.samples.Size() != picture.samples.Size();
    m_shown = picture;
    m_wanted->SetInfo(picture.info);
    m_wanted->SetFrame(picture.request.frame);
    if (!picture.request.isPreview)
        m_wanted->SetRange(picture.request.frame, picture.range);
    if (isOther)
        Follow(m_wanted);
    m_levels->Set(picture.samples.Type(), picture.range);
    m_profiles->SetPicture(picture.samples);

    emit signalSetCropState(NewSelection, false);
    emit signalShowPicture(m_shown.image);
    emit signalUpdateFileNameAndSize(GetFileInfo());
    emit signalUpdateLevel(m_levels->LeftValue(), m_levels->RightValue());
    m_profiles->PickMiddle(isOtherSize); // of one of the same size the place and the part that are seen stay
    if (isOther)
        AnnounceDocument();
    else
        AnnounceFrame();
    AnnounceSpectrum(isOther, isOtherSize);
    if (!m_shown.thumbnail.isNull())
        emit sglAddThumbnail(m_shown.thumbnail);
    emit UIConfigManager::GetInstance()->signalImageInfoChanged();
    if (picture.request.isPreview)
        m_trials->PreviewShown();
    else
        Settle(isOther);
    slotShowCurvesAgain(); // the plot has been told that it is another file, and ranges anew
    if (picture.request.count)
        m_trials->CountShown();
}

/// The picture is there without anything that is only tried.
void OpenedPicture::Settle(bool isOther)
{
    const bool was32Bit = Is32BitMat();
    m_settledType = m_shown.samples.Type();
    if (isOther || m_frameCount != m_shown.frames) {
        m_frameCount = m_shown.frames;
        m_wantedFrame = m_wantedFrame < m_frameCount ? m_wantedFrame : 0; // a stack that became one picture
        m_document->SetFrame(m_wantedFrame);
        TellFrameBrowser();
    }
    if (isOther)
        emit signalShown();
    else if (was32Bit != Is32BitMat())
        emit UIConfigManager::GetInstance()->signalUpdateImageControlUI();
}

/// An opened spectrum begins along its rows.
void OpenedPicture::AnnounceSpectrum(bool isOther, bool isOtherSize)
{
    emit signalColumnsChanged();
    if (isOther && IsSenImage())
        emit signalOpenSpefile();
    // The page was fitted to the other size: its cross may stand where it stood, and it asks for the curves there.
    if (isOtherSize && m_place == MainPlace)
        SpectrumUIManager::GetInstance()->UpdateDisplayModeProperty();
}

void OpenedPicture::AnnounceDocument()
{
    emit signalUpdateFileName(m_document->ShownName());
    if (!m_shown.info.warning.isEmpty())
        emit signalMessage(m_shown.info.warning);
}

void OpenedPicture::slotActiveImageChanged(QObject *image)
{
    m_isBrowsed = image == this;
    TellFrameBrowser();
}

/// The browser begins with the first frame of any file, and what it shows it asks for.
void OpenedPicture::TellFrameBrowser()
{
    if (!m_isBrowsed)
        return;
    m_isTellingBrowser = true;
    emit signalCurrentFileFrameNumber(m_frameCount);
    if (m_frameCount > 0)
        emit signalCurrentFrame(m_wantedFrame);
    m_isTellingBrowser = false;
}

/// Where the frame belongs in a stack of several channels or slices.
void OpenedPicture::AnnounceFrame()
{
    if (!m_shown.frameDescription.isEmpty())
        emit signalMessage(tr("Frame %1 of %2: %3")
                               .arg(m_shown.request.frame + 1)
                               .arg(m_shown.frames)
                               .arg(m_shown.frameDescription));
}

void OpenedPicture::GetIntensityCurveHistogramData(QPointF scenePos, QRectF region, int)
{
    m_profiles->Pick(scenePos, region);
}

void OpenedPicture::slotShowCurvesAgain() { m_profiles->slotAnnounce(); }

void OpenedPicture::Follow(PictureDocument *document)
{
    if (m_document)
        disconnect(m_document, nullptr, this, nullptr);
    m_document = document;
    connect(document, SIGNAL(signalEdited()), this, SLOT(slotEdited()));
    connect(document, SIGNAL(signalChanged()), this, SLOT(slotRenamed()));
}

/// While another picture is on its way, what was done to this one is seen when the other cannot be shown.
void OpenedPicture::ShowAnew()
{
    if (m_document && m_wanted == m_document)
        Request(m_document, m_wantedFrame);
}

void OpenedPicture::slotEdited() { ShowAnew(); }

void OpenedPicture::slotRenamed()
{
    if (!m_document || m_shown.request.file.path == m_document->Path())
        return;
    m_shown.request.file.path = m_document->Path();
    emit signalUpdateFileName(m_document->ShownName());
    emit signalUpdateFileNameAndSize(GetFileInfo());
}

void OpenedPicture::slotLevelsChanged()
{
    if (!m_document)
        return;
    m_document->ForgetRanges();
    ShowAnew();
}

void OpenedPicture::SetImage(int index)
{
    if (m_isTellingBrowser || !m_wanted || m_wanted != m_document || index < 0 || index >= m_frameCount
        || index == m_wantedFrame)
        return;
    Request(m_document, index);
}

void OpenedPicture::DrawImage()
{
    if (!IsNonImage())
        emit signalShowPicture(m_shown.image);
}

void OpenedPicture::CloseImage()
{
    if (IsNonImage() && !m_wanted)
        return;
    Forget();
    emit signalSetCropState(NewSelection, false);
    emit signalShowPicture(QImage());
    emit signalUpdateFileName(QString());
    emit signalResetImageInfo();
    emit signalResetImageSize();
    emit signalColumnsChanged();
    TellFrameBrowser();
    emit UIConfigManager::GetInstance()->signalImageInfoChanged();
}

void OpenedPicture::Forget()
{
    if (m_document)
        disconnect(m_document, nullptr, this, nullptr);
    m_trials->End();
    m_document.clear();
    m_wanted.clear();
    m_frameCount = 0;
    m_wantedFrame = 0;
    m_shown = LoadedPicture();
    m_levels->Set(SampleType::U8, { 0, 255 });
    m_profiles->Forget();
}

void OpenedPicture::ConnectWidthDrawView(QObject *view, bool spectrum)
{
    if (spectrum) {
        connect(this, SIGNAL(signalShowPicture(QImage)), view, SLOT(slotPaintStaticPreview(QImage)));
        return;
    }
    if (m_place != MainPlace) // the main picture reaches its view as processed frames
        connect(this, SIGNAL(signalShowPicture(QImage)), view, SLOT(slotPaintPreview(QImage)));
    connect(view, SIGNAL(signalUpdateMousePosition(QPointF)), this, SLOT(slotMouseAt(QPointF)));
    connect(view, SIGNAL(signalUpdateImageGrayValueInfo()), this, SLOT(slotReadPixel()));
}

// Commands

void OpenedPicture::slotRotateImage(int type)
{
    if (IsNonImage())
        return;
    const QString text = type == RotateBy90 ? tr("Rotate") : tr("Flip");
    m_document->PushEdit(m_document->Edit().Turned(type), text);
}

void OpenedPicture::slotImageCrop()
{
    // What is cropped out is said in pixels of the picture without what is tried.
    m_trials->Preview(ProcessSettings());
    if (!IsNonImage())
        emit signalSetCropState(NewSelection, true);
}

void OpenedPicture::slotCrop(int x, int y, int width, int height, bool apply)
{
    if (apply && !IsNonImage())
        m_document->PushEdit(m_document->Edit().Cropped(QRect(x, y, width, height), m_shown.fileSize),
                             tr("Crop"));
}

void OpenedPicture::slotSaveImageAs()
{
    if (IsNonImage())
        emit signalMessage(tr("No picture is open that could be saved."));
    else
        emit signalSaveAsWanted();
}

SaveRequest OpenedPicture::SaveOfShown(bool allFrames) const
{
    SaveRequest request;
    request.file = m_document->File();
    request.firstFrame = allFrames ? 0 : m_shown.request.frame;
    request.frameCount = allFrames ? m_frameCount : 1;
    request.edit = m_document->Edit();
    request.ranges = m_document->Ranges();
    if (m_calibration)
        request.calibration = m_calibration();
    return request;
}

void OpenedPicture::SaveAs(const QString &target, bool allFrames)
{
    SaveRequest request = SaveOfShown(allFrames);
    request.target = target;
    m_loader->Save(request);
}

void OpenedPicture::slotImageInfo()
{
    if (!IsNonImage())
        emit signalInformationWanted();
}

MeasureManager *OpenedPicture::GetMeasureManager() const { return m_measuring; }

/// Panels say themselves what they process; the module only ends it.
void OpenedPicture::SetProcessType(int type)
{
    constexpr int none = 0;
    if (type == none)
        emit m_trials->signalProcessingEnded();
}

void OpenedPicture::SetAdjustApply(int) { emit m_trials->signalApplyWanted(); }
