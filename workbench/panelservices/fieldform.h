// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "panelfield.h"
#include "panelservicesexport.h"

#include <QHash>
#include <QPointer>
#include <QWidget>

class FieldSource;
class QFormLayout;
class QLabel;
class QVBoxLayout;

/// Shows the fields of a source as a form, in its order and groups, and passes on what the user sets. The widgets stay
/// while their values change; they are made when the form is first seen, and anew only when the source has other fields.
/// Without a source it says `absentText`. GUI thread.
class WORKBENCH_PANELSERVICES_EXPORT FieldForm : public QWidget
{
    Q_OBJECT

public:
    /// `source` may be null, and may go before this object.
    FieldForm(FieldSource *source, const QString &absentText, QWidget *parent = nullptr);

public slots:
    /// Shows the state of the source anew, unless the form is not seen: then when it is.
    void slotUpdate();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private slots:
    void slotFault(QString text);
    void slotSourceGone();

private:
    QString FocusedKey() const;
    void Build(const PanelFields &fields);
    void AddField(const PanelField &field);
    QWidget *MakeWidget(const PanelField &field);
    void TakeWheelWithFocusOnly(QWidget *widget);
    QWidget *MakeNumber(const PanelField &field);
    QWidget *MakeChoice(const PanelField &field);
    QWidget *MakeText(const PanelField &field);
    QWidget *MakeFolder(const PanelField &field);
    void ShowField(const PanelField &field);
    void Send(const QString &key, const QVariant &value);

    QPointer<FieldSource> m_source;
    QVBoxLayout *m_column;
    QWidget *m_fields = nullptr; ///< holds all that the source's fields need
    QFormLayout *m_form = nullptr;
    QString m_group;
    QLabel *m_fault;
    QStringList m_shape; ///< key and kind of each field that has a widget
    QHash<QString, QWidget *> m_widgets;
    QHash<QString, QLabel *> m_labels; ///< of those that have one
};
