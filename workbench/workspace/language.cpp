// SPDX-License-Identifier: GPL-3.0-or-later
#include "language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QSettings>
#include <QTranslator>

namespace {

const char LanguageKey[] = "window/language";

void InstallCatalogue(const QString &path)
{
    auto *translator = new QTranslator(qApp);
    if (translator->load(path))
        QCoreApplication::installTranslator(translator);
    else
        delete translator;
}

} // namespace

QStringList Language::Names()
{
    return {QStringLiteral("en"), QStringLiteral("de")};
}

QString Language::SystemName()
{
    return QLocale::system().name().section('_', 0, 0);
}

Language::Language(QSettings *settings, const QString &system)
    : m_settings(settings)
    , m_system(system)
{
}

QString Language::Name() const
{
    for (const QString &name : {m_settings->value(LanguageKey).toString(), m_system}) {
        if (Names().contains(name))
            return name;
    }
    return Names().constFirst();
}

void Language::Choose(const QString &name)
{
    if (Names().contains(name))
        m_settings->setValue(LanguageKey, name);
}

void Language::Install() const
{
    const QString name = Name();
    InstallCatalogue(QLibraryInfo::location(QLibraryInfo::TranslationsPath) + "/qtbase_" + name);
    InstallCatalogue(":/translations/globalui_" + name);
    InstallCatalogue(":/translations/workbench_" + name);
}
