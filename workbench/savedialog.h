// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "exportdialog.h"
#include "sampletype.h"

class QCheckBox;
class QLabel;
class QLineEdit;

/// Asks where to save a picture, and says what the chosen format cannot keep of it. GUI thread.
class SaveDialog : public ExportDialog
{
    Q_OBJECT

public:
    /// What is to be saved.
    struct Subject
    {
        QString suggestedPath; ///< without a suffix
        SampleType type = SampleType::U8;
        int channels = 1;
        int frames = 1;
        bool wantsAllFrames = false; ///< rather than the one that is shown
    };

    SaveDialog(const Subject &subject, QWidget *parent);

    /// The whole stack rather than the frame that is shown.
    bool AllFrames() const;

private slots:
    void slotFilterSelected(const QString &filter);
    void slotUpdateNotes();

private:
    const Subject m_subject;
    QLineEdit *m_name = nullptr; ///< the dialog's own
    QLabel *m_loss;
    QCheckBox *m_allFrames;
};
