// SPDX-License-Identifier: GPL-3.0-or-later
#include "applicationlook.h"
#include "stylesheet.h"

#include <QApplication>
#include <QSettings>

namespace {
const char LookKey[] = "window/look";
}

QStringList ApplicationLook::Names()
{
    return {QStringLiteral("dark"), QStringLiteral("light")};
}

ApplicationLook::ApplicationLook(QSettings *settings, QObject *parent)
    : QObject(parent)
    , m_settings(settings)
    , m_name(settings->value(LookKey).toString())
{
    if (!Names().contains(m_name))
        m_name = Names().constFirst();
}

void ApplicationLook::Apply() const
{
    const StyleSheet sheet = StyleSheet::Named(m_name);
    if (!sheet.ErrorText().isEmpty())
        qWarning("%s", qUtf8Printable(sheet.ErrorText()));
    sheet.Apply(*qApp);
}

void ApplicationLook::Choose(const QString &name)
{
    if (!Names().contains(name) || name == m_name)
        return;
    m_name = name;
    m_settings->setValue(LookKey, name);
    Apply();
    emit signalChanged();
}
