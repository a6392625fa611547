// SPDX-License-Identifier: GPL-3.0-or-later
#include "picturetrials.h"

#include "openedpicture.h"
#include "picturedocument.h"

PictureTrials::PictureTrials(OpenedPicture *picture)
    : QObject(picture)
    , m_picture(picture)
{
}

/// Nothing is tried on a picture that is about to be replaced.
bool PictureTrials::IsShownWanted() const
{
    return m_picture->Document() && m_picture->Document() == m_picture->WantedDocument();
}

void PictureTrials::Preview(const ProcessSettings &settings)
{
    if (!IsShownWanted() || settings == m_preview)
        return;
    m_applyText.clear();
    m_preview = settings;
    m_picture->ShowAnew();
    if (IsNone(settings))
        emit signalPreviewEnded();
}

void PictureTrials::ApplyPreview(const QString &text)
{
    if (!IsPreviewing())
        return;
    m_applyText = text;
    if (m_picture->IsUpToDate())
        PreviewShown();
}

void PictureTrials::PreviewShown()
{
    emit signalPreviewed(QString());
    if (m_applyText.isEmpty() || !m_picture->IsUpToDate())
        return;
    PictureDocument *document = m_picture->Document();
    const PictureEdit edit = document->Edit().Processed(m_preview);
    const QString text = m_applyText;
    m_preview = ProcessSettings();
    m_applyText.clear();
    document->PushEdit(edit, text);
    emit signalPreviewEnded();
}

void PictureTrials::PreviewFailed(const QString &error)
{
    m_applyText.clear();
    emit signalPreviewed(error);
}

void PictureTrials::Count(const std::optional<CountSettings> &settings)
{
    if (!IsShownWanted() || settings == m_count)
        return;
    m_count = settings;
    m_picture->ShowAnew();
}

void PictureTrials::CountShown()
{
    if (m_count)
        emit signalCounted();
}

void PictureTrials::End()
{
    if (IsPreviewing()) {
        m_preview = ProcessSettings();
        m_applyText.clear();
        emit signalPreviewEnded();
    }
    if (m_count) {
        m_count.reset();
        emit signalProcessingEnded();
    }
}
