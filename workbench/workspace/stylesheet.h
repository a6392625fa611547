// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QString>

class QApplication;
class QPalette;

/// The look of the application: a style sheet template filled with the colours of a token table.
/// The table has one "name = value" a line and "#" comments; the template writes a value as @name@.
/// A value: load it, apply it, drop it. GUI thread only.
class StyleSheet
{
public:
    /// A file that cannot be read, a malformed line or an unknown token leaves the text empty.
    static StyleSheet Load(const QString &templateFile, const QString &tokenFile);
    /// One of the application's looks, "dark" or "light", from its resources.
    static StyleSheet Named(const QString &look);

    /// The filled style sheet; empty after a failure.
    QString Text() const { return m_text; }
    /// What went wrong, with the file and the name; empty when all went well.
    QString ErrorText() const { return m_errorText; }
    /// Value of a token, empty if the table has no such name.
    QString Token(const QString &name) const { return m_tokens.value(name); }

    /// Colours for what no rule of the sheet reaches: file dialogs, plain widgets, links.
    QPalette Palette() const;
    /// Base style, palette and sheet, its sizes scaled to the screen, for the whole application.
    void Apply(QApplication &application) const;

private:
    bool ReadTokens(const QString &fileName);
    bool Fill(const QString &text, const QString &fileName);

    QHash<QString, QString> m_tokens;
    QString m_text;
    QString m_errorText;
};
