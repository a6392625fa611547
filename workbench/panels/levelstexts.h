// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QStringList>

class SampleKind;

/// What menus, dialogs and panels call levels, samples and palettes.
class LevelsTexts
{
    Q_DECLARE_TR_FUNCTIONS(LevelsTexts)

public:
    /// In the order of LevelsMode.
    static QStringList Modes();
    static QString Kind(const SampleKind &kind);
    /// With its mnemonic. Most palettes are known by the names that their authors gave them.
    static QString PaletteTitle(const QString &name);
};
