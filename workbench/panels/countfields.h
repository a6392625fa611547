// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "countsettings.h"
#include "fieldsource.h"

#include <QTimer>

class AutoCounting;
class OpenedPicture;

/// Counting of the objects of the opened picture: what counts as one, the result, and where it is saved. While it goes on
/// every change is counted anew. GUI thread.
class CountFields : public FieldSource
{
    Q_OBJECT

public:
    /// Both are borrowed and outlive this object.
    CountFields(OpenedPicture *picture, AutoCounting *counting, QObject *parent = nullptr);

    PanelFields Fields() const override;
    void Set(const QString &key, const QVariant &value) override;
    QAbstractItemModel *Table() override;

signals:
    /// A sentence for the status bar.
    void signalMessage(QString text);
    /// What could not be saved and why, for the user.
    void signalNotSaved(QString text);

private slots:
    void slotCount();
    void slotCounted();
    void slotEnd();
    void slotSaved(QString path, QString error);

private:
    void AddObjects(PanelFields &fields) const;
    void AddLimits(PanelFields &fields) const;
    void AddResult(PanelFields &fields) const;
    QString ResultText() const;
    bool SetObject(const QString &key, const QVariant &value);
    bool SetLimit(const QString &key, const QVariant &value);

    OpenedPicture *m_picture;
    AutoCounting *m_counting;
    CountSettings m_settings;
    double m_pixelSize = 0; ///< 0: not known
    int m_unit = 0;
    QTimer m_delay;
};
