// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fieldsource.h"
#include "processchoices.h"

#include <QTimer>

class OpenedPicture;
class PictureDocument;
class PictureShelf;

/// Processing of the opened picture: one step is chosen and set, tried on the picture that is shown, and applied, which
/// can be undone. What is only tried ends when nobody looks at the fields any more. GUI thread.
class ProcessFields : public FieldSource
{
    Q_OBJECT

public:
    /// Both are borrowed and outlive this object.
    ProcessFields(OpenedPicture *picture, PictureShelf *shelf, QObject *parent = nullptr);

    PanelFields Fields() const override;
    void Set(const QString &key, const QVariant &value) override;
    void SetWatched(bool watched) override;

signals:
    /// A sentence for the status bar.
    void signalMessage(QString text);

private slots:
    void slotLeave();
    void slotTry();
    void slotApply();
    void slotPreviewed(QString error);
    void slotPreviewEnded();
    void slotAdded(PictureDocument *document);

private:
    ProcessChoices::Context Context() const;
    QString StateText() const;

    OpenedPicture *m_picture;
    PictureShelf *m_shelf;
    ProcessChoices m_choices;
    QTimer m_delay;
    bool m_isWatched = false;
    bool m_isTried = false; ///< it is on the screen
};
