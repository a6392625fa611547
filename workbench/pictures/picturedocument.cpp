// SPDX-License-Identifier: GPL-3.0-or-later
#include "picturedocument.h"

#include "filenametext.h"

#include <QFileInfo>
#include <QUndoStack>

/// One step from one state of the edit to another.
class EditCommand : public QUndoCommand
{
public:
    EditCommand(PictureDocument *document, const PictureEdit &after, const QString &text)
        : QUndoCommand(text)
        , m_document(document)
        , m_before(document->Edit())
        , m_after(after)
    {
    }

    void undo() override { m_document->SetEdit(m_before); }
    void redo() override { m_document->SetEdit(m_after); }

private:
    PictureDocument *m_document;
    const PictureEdit m_before;
    const PictureEdit m_after;
};

PictureDocument::PictureDocument(quint64 id, const QString &path, QObject *parent)
    : QObject(parent)
    , m_id(id)
    , m_path(path)
    , m_undoStack(new QUndoStack(this))
{
}

QString PictureDocument::Name() const { return QFileInfo(m_path).fileName(); }

QString PictureDocument::ShownName() const { return FileNameText(Name()); }

void PictureDocument::SetPath(const QString &path)
{
    m_path = path;
    emit signalChanged();
}

QString PictureDocument::Description() const
{
    if (m_info.frames == 0)
        return m_path;
    QStringList lines{ m_path };
    const QString format = FormatName(m_info.format);
    lines << (m_info.formatDetail.isEmpty() ? format : QString("%1 (%2)").arg(format, m_info.formatDetail));
    lines << QString("%1x%2").arg(m_info.size.width()).arg(m_info.size.height());
    lines << (m_info.channels == 3 ? tr("RGB, %1").arg(SampleTypeName(m_info.sampleType))
                                   : SampleTypeName(m_info.sampleType));
    if (m_info.frames > 1)
        lines << tr("%1 frames").arg(m_info.frames);
    return lines.join('\n');
}

/// Those of the file take turns in a stack that was processed, too.
int PictureDocument::KindOf(int frame) const { return frame % qMax(1, m_info.kinds); }

SampleRange PictureDocument::Range(int frame) const { return m_ranges.value(KindOf(frame)); }

void PictureDocument::SetRange(int frame, const SampleRange &range)
{
    m_ranges.resize(qMax(1, m_info.kinds));
    m_ranges[KindOf(frame)] = range;
}

void PictureDocument::SetThumbnail(const QImage &thumbnail)
{
    m_thumbnail = thumbnail;
    emit signalChanged();
}

void PictureDocument::SetChecked(bool checked)
{
    if (m_isChecked == checked)
        return;
    m_isChecked = checked;
    emit signalChanged();
}

void PictureDocument::PushEdit(const PictureEdit &edit, const QString &text)
{
    if (edit != m_edit)
        m_undoStack->push(new EditCommand(this, edit, text));
}

void PictureDocument::Reset()
{
    m_undoStack->clear();
    ForgetRanges();
    m_edit = PictureEdit();
}

/// Steps that undo each other leave it as it is in its own file, whatever was saved elsewhere.
bool PictureDocument::IsChanged() const { return !m_edit.IsNone() && !m_undoStack->isClean(); }

void PictureDocument::SetSaved(const PictureEdit &edit)
{
    if (edit == m_edit) // not when more was done meanwhile
        m_undoStack->setClean();
}

void PictureDocument::SetEdit(const PictureEdit &edit)
{
    if (!edit.HasSameSteps(m_edit))
        ForgetRanges(); // other samples
    m_edit = edit;
    emit signalEdited();
}
