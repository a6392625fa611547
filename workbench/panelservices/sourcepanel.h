// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fieldsource.h"
#include "uiplugin.h"

#include <QObject>
#include <QPointer>

/// A plug-in that shows a source of the application in a form, a table page or another widget that is made from a source
/// and a text for when there is none, and has a slotUpdate(). A plug-in derives from it and adds its metadata.
template <class Form>
class SourcePanel : public QObject, public UIPlugin
{
public:
    QWidget *GetWidget() override
    {
        if (!m_form) {
            m_form = new Form(FieldSource::Find(m_source), m_absentText);
            m_form->setObjectName(m_objectName);
        }
        return m_form;
    }

    void UpdateUI() override
    {
        if (m_form)
            m_form->slotUpdate();
    }

protected:
    /// The widget is called `objectName`.
    SourcePanel(const QString &source, const QString &objectName, const QString &absentText)
        : m_source(source)
        , m_objectName(objectName)
        , m_absentText(absentText)
    {
    }

private:
    QString m_source;
    QString m_objectName;
    QString m_absentText;
    QPointer<Form> m_form; ///< owned by the tab that it is placed in
};
