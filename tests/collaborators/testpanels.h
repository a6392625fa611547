// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "uimanagerbase.h"

#include <QRegularExpression>
#include <QVector>

/// A manager of the plug-ins that were made for the tests: 4 is a tab, 30 and 31 are bottom pages. 4 and 31
/// throw when they are brought up to date with the property "fails".
class TestPanels : public UIManagerBase
{
public:
    using UIManagerBase::SetTabIds;

    void LoadTestFolder(bool complete) { LoadUIPluginAndInitUI("plugins/test/ui", nullptr, complete); }

    void UpdateAll()
    {
        const QList<LoadedPlugin> plugins = Plugins();
        for (const LoadedPlugin &loaded : plugins)
            UpdatePlugin(loaded);
    }

    QList<int> Ids() const
    {
        QList<int> ids;
        for (const LoadedPlugin &loaded : Plugins())
            ids << loaded.id;
        return ids;
    }

    QWidget *Panel(int id) const
    {
        for (const LoadedPlugin &loaded : Plugins()) {
            if (loaded.id == id)
                return loaded.widget;
        }
        return nullptr;
    }

    /// One warning comes for each plug-in of the folder that can't be loaded.
    static QVector<QRegularExpression> Warnings()
    {
        QVector<QRegularExpression> warnings;
        for (const char *file : {"d_sameid", "e_otherinterface", "f_nometadata", "g_noid", "h_unresolved",
                                 "i_notapanel", "j_nopanel", "k_text", "m_otherversion", "n_otherqt", "o_throws",
                                 "p_throwslate", "q_needslibrary", "r_brokenlink", "s_throwsinupdate"})
            warnings << QRegularExpression(QString("%1\\.so is not loaded: .+").arg(file));
        return warnings;
    }
};
