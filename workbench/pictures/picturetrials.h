// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "countsettings.h"
#include "processsettings.h"

#include <QObject>

#include <optional>

class OpenedPicture;

/// What is only tried on an opened picture: a step of processing that is in no file and on no undo stack yet, and the
/// marks of counted objects. Owned by its OpenedPicture, which makes every picture with it. GUI thread.
class PictureTrials : public QObject
{
    Q_OBJECT

public:
    /// `picture` owns this object.
    explicit PictureTrials(OpenedPicture *picture);

    /// Shows what a step of processing would make of the picture; none ends it. Ends by itself when another picture is
    /// shown or the user begins to crop.
    void Preview(const ProcessSettings &settings);
    /// Makes what is tried a step that can be undone, `text`, as soon as it is shown.
    void ApplyPreview(const QString &text);
    /// Counts and marks the objects of what is shown, until it is told otherwise or another picture is shown.
    void Count(const std::optional<CountSettings> &settings);

    bool IsPreviewing() const { return !IsNone(m_preview); }
    const ProcessSettings &Previewed() const { return m_preview; }
    const std::optional<CountSettings> &Counting() const { return m_count; }

    /// What is tried is on the screen: applies it if that was asked for.
    void PreviewShown();
    /// What was shown before stays, and what is tried is still what the user set.
    void PreviewFailed(const QString &error);
    void CountShown();
    /// Another picture is wanted.
    void End();

signals:
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

private:
    bool IsShownWanted() const;

    OpenedPicture *m_picture;
    ProcessSettings m_preview; ///< of the picture's document, like all of it
    QString m_applyText;       ///< of the step that the preview becomes when it is shown; empty: it does not
    std::optional<CountSettings> m_count;
};
