// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QJsonObject>
#include <QSet>
#include <QString>

/// What a plug-in file says of itself, readable without running any of its code.
class UIPluginMetaData
{
    Q_DECLARE_TR_FUNCTIONS(UIPluginMetaData)

public:
    /// As QPluginLoader::metaData() gives it, and its errorString() where that is empty.
    explicit UIPluginMetaData(const QJsonObject &information, const QString &readError = QString());

    /// Why this does not describe a panel that can be placed; empty when it does.
    QString Fault(const QSet<int> &takenIds) const;
    /// -1 when there is none.
    int Id() const;
    QString Version() const;
    /// A page of the bottom tab widget, otherwise a tab of a control panel.
    bool IsBottomPage() const;
    /// Text of the bottom page; of a tab only what the list of plug-ins calls it, and may be empty.
    QString Title() const;
    /// The left pages that a bottom page is shown with.
    bool BelongsToCamera() const;
    bool BelongsToImage() const;

private:
    QString Page() const;
    /// Empty when the plug-in speaks this program's interface and was built for a Qt that fits.
    QString InterfaceFault() const;

    QJsonObject m_information;
    QJsonObject m_metaData;
    QString m_readError;
};
