// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pictureaccess.h"
#include "pictureedit.h"
#include "samplerange.h"

#include <QImage>
#include <QObject>

class QUndoStack;

/// A file in the list of opened pictures: its name, what is known of it, and what was done to it. Its
/// frames are the loader's. Owned by the shelf. GUI thread.
class PictureDocument : public QObject
{
    Q_OBJECT

public:
    PictureDocument(quint64 id, const QString &path, QObject *parent);

    PictureAccess::FileName File() const { return { m_id, m_path }; }
    const QString &Path() const { return m_path; }
    /// Without its folder.
    QString Name() const;
    /// On one line, to be shown.
    QString ShownName() const;
    void SetPath(const QString &path);

    /// Frames are 0 until the file was opened once.
    const PictureInfo &Info() const { return m_info; }
    void SetInfo(const PictureInfo &info) { m_info = info; }
    /// Path, format, size and samples, one line each.
    QString Description() const;

    const QImage &Thumbnail() const { return m_thumbnail; }
    void SetThumbnail(const QImage &thumbnail);
    bool IsChecked() const { return m_isChecked; }
    void SetChecked(bool checked);

    /// Automatic levels of a frame, as they were found when one of its kind was first shown.
    SampleRange Range(int frame) const;
    void SetRange(int frame, const SampleRange &range);
    /// Of each kind of frame; may be shorter.
    const QVector<SampleRange> &Ranges() const { return m_ranges; }
    void ForgetRanges() { m_ranges.clear(); }

    /// The one shown last (from 0).
    int Frame() const { return m_frame; }
    void SetFrame(int frame) { m_frame = frame; }

    const PictureEdit &Edit() const { return m_edit; }
    /// A step that can be undone; `text` is what it is called. Nothing when it changes nothing.
    void PushEdit(const PictureEdit &edit, const QString &text);
    /// As it is in the file; nothing to undo.
    void Reset();
    QUndoStack *UndoStack() const { return m_undoStack; }
    /// What was done to it is in no file.
    bool IsChanged() const;
    /// A file has all frames as `edit` makes them.
    void SetSaved(const PictureEdit &edit);

signals:
    /// Name, thumbnail or check mark.
    void signalChanged();
    void signalEdited();

private:
    friend class EditCommand;
    void SetEdit(const PictureEdit &edit);
    int KindOf(int frame) const;

    const quint64 m_id;
    QString m_path;
    PictureInfo m_info;
    QImage m_thumbnail;
    bool m_isChecked = false;
    QVector<SampleRange> m_ranges;
    int m_frame = 0;
    PictureEdit m_edit;
    QUndoStack *m_undoStack;
};
