// SPDX-License-Identifier: GPL-3.0-or-later
#include "stylesheet.h"
#include "globalclass.h"
#include "workbenchstyle.h"

#include <QApplication>
#include <QFile>
#include <QPalette>
#include <QRegularExpression>

namespace {

bool ReadText(const QString &fileName, QString *text, QString *errorText)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        *errorText = QStringLiteral("%1: %2").arg(fileName, file.errorString());
        return false;
    }
    *text = QString::fromUtf8(file.readAll());
    return true;
}

/// Sizes in the template are design sizes; a line stays at least a pixel wide.
QString WithActualSizes(const QString &text)
{
    static const QRegularExpression size(QStringLiteral("\\b([1-9][0-9]*)px"));
    QString sized;
    int copied = 0;
    QRegularExpressionMatchIterator matches = size.globalMatch(text);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        sized += text.midRef(copied, match.capturedStart() - copied);
        sized += QStringLiteral("%1px").arg(GlobalClass::GetActualSize(match.captured(1).toInt()));
        copied = match.capturedEnd();
    }
    return sized + text.midRef(copied);
}

} // namespace

StyleSheet StyleSheet::Load(const QString &templateFile, const QString &tokenFile)
{
    StyleSheet sheet;
    QString text;
    if (sheet.ReadTokens(tokenFile) && ReadText(templateFile, &text, &sheet.m_errorText))
        sheet.Fill(text, templateFile);
    return sheet;
}

StyleSheet StyleSheet::Named(const QString &look)
{
    return Load(QStringLiteral(":/style/workbench.qss.in"), QStringLiteral(":/style/%1.tokens").arg(look));
}

bool StyleSheet::ReadTokens(const QString &fileName)
{
    QString text;
    if (!ReadText(fileName, &text, &m_errorText))
        return false;

    const QStringList lines = text.split(QLatin1Char('\n'));
    for (int i = 0; i < lines.size(); ++i) {
        const QString line = lines[i].trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
            continue;
        const QString name = line.section(QLatin1Char('='), 0, 0).trimmed();
        const QString value = line.section(QLatin1Char('='), 1).trimmed();
        if (name.isEmpty() || value.isEmpty()) {
            m_errorText = QStringLiteral("%1:%2: expected \"name = value\"").arg(fileName).arg(i + 1);
            return false;
        }
        m_tokens.insert(name, value);
    }
    return true;
}

bool StyleSheet::Fill(const QString &text, const QString &fileName)
{
    static const QRegularExpression reference(QStringLiteral("@([a-z-]+)@"));
    QString filled;
    int copied = 0;
    QRegularExpressionMatchIterator matches = reference.globalMatch(text);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        const QString name = match.captured(1);
        if (!m_tokens.contains(name)) {
            m_errorText = QStringLiteral("%1: no token is called \"%2\"").arg(fileName, name);
            return false;
        }
        filled += text.midRef(copied, match.capturedStart() - copied);
        filled += m_tokens.value(name);
        copied = match.capturedEnd();
    }
    filled += text.midRef(copied);
    m_text = filled;
    return true;
}

QPalette StyleSheet::Palette() const
{
    struct Role
    {
        QPalette::ColorRole role;
        const char *token;
    };
    static const Role roles[] = {
        { QPalette::Window, "window" },
        { QPalette::WindowText, "text" },
        { QPalette::Base, "field" },
        { QPalette::AlternateBase, "window" },
        { QPalette::Text, "text" },
        { QPalette::Button, "raised" },
        { QPalette::ButtonText, "text" },
        { QPalette::BrightText, "accent-strong" },
        { QPalette::Highlight, "accent" },
        { QPalette::HighlightedText, "text-on-accent" },
        { QPalette::ToolTipBase, "field" },
        { QPalette::ToolTipText, "text" },
        { QPalette::Link, "accent-strong" },
        { QPalette::LinkVisited, "accent-strong" },
        { QPalette::Light, "hover" },
        { QPalette::Mid, "edge" },
        { QPalette::Dark, "line" },
        { QPalette::Shadow, "line" },
        { QPalette::PlaceholderText, "text-muted" },
    };
    QPalette palette;
    for (const Role &entry : roles)
        palette.setColor(entry.role, QColor(Token(QLatin1String(entry.token))));
    for (QPalette::ColorRole role : { QPalette::WindowText, QPalette::Text, QPalette::ButtonText })
        palette.setColor(QPalette::Disabled, role, QColor(Token(QStringLiteral("text-disabled"))));
    return palette;
}

void StyleSheet::Apply(QApplication &application) const
{
    application.setStyle(new WorkbenchStyle); // the application takes it
    application.setPalette(Palette());
    application.setStyleSheet(WithActualSizes(m_text));
}
