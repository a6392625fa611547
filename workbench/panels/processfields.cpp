// SPDX-License-Identifier: GPL-3.0-or-later
#include "processfields.h"

#include "openedpicture.h"
#include "picturedocument.h"
#include "pictureshelf.h"
#include "picturetrials.h"

namespace {

/// While a number is being changed step by step nothing is calculated.
constexpr int DelayMs = 120;

} // namespace

ProcessFields::ProcessFields(OpenedPicture *picture, PictureShelf *shelf, QObject *parent)
    : FieldSource(ProcessName, parent)
    , m_picture(picture)
    , m_shelf(shelf)
{
    m_delay.setSingleShot(true);
    m_delay.setInterval(DelayMs);
    connect(&m_delay, &QTimer::timeout, this, &ProcessFields::slotTry);
    connect(picture->Trials(), &PictureTrials::signalPreviewed, this, &ProcessFields::slotPreviewed);
    connect(picture->Trials(), &PictureTrials::signalPreviewEnded, this, &ProcessFields::slotPreviewEnded);
    connect(picture->Trials(), &PictureTrials::signalApplyWanted, this, &ProcessFields::slotApply);
    connect(picture, &OpenedPicture::signalShown, this, &ProcessFields::signalChanged);
    connect(shelf, &PictureShelf::signalAdded, this, &ProcessFields::slotAdded);
    connect(shelf, &PictureShelf::signalRemoved, this, &ProcessFields::signalChanged);
}

/// A picture that is checked or not changes what is merged.
void ProcessFields::slotAdded(PictureDocument *document)
{
    connect(document, &PictureDocument::signalChanged, this, [this] {
        if (std::holds_alternative<MergeSettings>(m_choices.Settings(Context())))
            m_delay.start();
        emit signalChanged();
    });
    emit signalChanged();
}

ProcessChoices::Context ProcessFields::Context() const
{
    ProcessChoices::Context context;
    const PictureDocument *shown = m_picture->Document();
    context.isFloat = IsFloat(m_picture->Shown().samples.Type());
    context.frames = m_picture->FrameCount();
    for (const PictureDocument *document : m_shelf->Documents()) {
        if (document == shown)
            continue;
        context.references << document->Path();
        context.referenceNames << document->Name();
    }
    for (const PictureDocument *document : m_shelf->Chosen()) {
        if (document == shown)
            continue;
        context.others << document->Path();
        context.otherNames << document->Name();
    }
    return context;
}

PanelFields ProcessFields::Fields() const
{
    const bool isOpen = !m_picture->IsNonImage();
    PanelFields fields;
    fields << PanelField::MakeChoice("step", tr("&Step"), m_choices.Index(), ProcessChoices::Names());
    fields.last().isEnabled = isOpen;
    SetGroup(fields, 0, tr("Processing"));
    const int first = fields.size();
    fields << m_choices.Fields(Context());
    SetGroup(fields, first, ProcessChoices::Names().at(m_choices.Index()));
    const int last = fields.size();
    fields << PanelField::MakeNote(QString(), "state", QString(), StateText());
    fields << PanelField::MakeAction("apply", tr("&Apply"), m_choices.Index() != 0);
    fields << PanelField::MakeAction("cancel", tr("&Cancel"), m_choices.Index() != 0);
    fields.last().isBeside = true;
    SetGroup(fields, last, tr("Preview"));
    return fields;
}

QString ProcessFields::StateText() const
{
    if (m_picture->IsNonImage())
        return tr("No picture is open.");
    if (m_choices.Index() == 0)
        return tr("Choose a step to try it on the picture.");
    return m_isTried ? tr("Tried on the picture, not applied yet.") : tr("Working\u2026");
}

void ProcessFields::Set(const QString &key, const QVariant &value)
{
    if (m_picture->IsNonImage())
        return;
    if (key == "apply")
        return slotApply();
    const ProcessChoices::Context context = Context();
    if (key == "cancel")
        m_choices.SetIndex(0);
    else if (key == "step")
        m_choices.SetIndex(value.toInt());
    else if (!m_choices.Set(key, value, context))
        return;
    m_isTried = false;
    if (m_choices.Index() == 0)
        slotTry();
    else
        m_delay.start();
    emit signalFault(QString());
    emit signalChanged();
}

/// The one who looked may be on his way out, so nothing is told him at once.
void ProcessFields::SetWatched(bool watched)
{
    m_isWatched = watched;
    if (!watched)
        QMetaObject::invokeMethod(this, &ProcessFields::slotLeave, Qt::QueuedConnection);
}

void ProcessFields::slotLeave()
{
    if (!m_isWatched)
        Set("cancel", QVariant());
}

void ProcessFields::slotTry()
{
    m_delay.stop();
    m_picture->Trials()->Preview(m_choices.Settings(Context()));
}

/// The button above the panels, too, which can be clicked when there is nothing to apply.
void ProcessFields::slotApply()
{
    if (m_choices.Index() == 0) {
        emit signalMessage(tr("There is nothing to apply: choose a step in the panel Process first."));
        return;
    }
    if (m_delay.isActive())
        slotTry();
    m_picture->Trials()->ApplyPreview(ProcessChoices::StepText(m_choices.Settings(Context())));
}

void ProcessFields::slotPreviewed(QString error)
{
    m_isTried = error.isEmpty();
    emit signalFault(error);
    emit signalChanged();
}

void ProcessFields::slotPreviewEnded()
{
    m_delay.stop();
    m_isTried = false;
    if (m_choices.Index() == 0)
        return;
    m_choices.SetIndex(0);
    emit signalFault(QString());
    emit signalChanged();
}
