// SPDX-License-Identifier: GPL-3.0-or-later
#include "uipluginmetadata.h"

#include "uiplugin.h"

UIPluginMetaData::UIPluginMetaData(const QJsonObject &information)
    : m_information(information)
    , m_metaData(information.value("MetaData").toObject())
{
}

QString UIPluginMetaData::Fault(const QSet<int> &takenIds) const
{
    if (m_information.isEmpty())
        return tr("it is not a plug-in");
    const QString iid = m_information.value("IID").toString();
    if (iid != GLOBALUI_UIPLUGIN_IID)
        return tr("it is a plug-in for another interface: \"%1\"").arg(iid);
    if (Id() < 0)
        return tr("its metadata has no valid \"id\"");
    if (takenIds.contains(Id()))
        return tr("another plug-in has the id %1 already").arg(Id());
    const QString place = m_metaData.value("place").toString();
    if (place != "tab" && place != "bottom")
        return tr("its metadata has no valid \"place\"");
    if (IsBottomPage() && Title().isEmpty())
        return tr("its metadata has no \"title\" for the bottom page");
    const QString page = Page();
    if (page != "camera" && page != "image" && page != "both")
        return tr("its metadata has no valid \"page\"");
    return QString();
}

int UIPluginMetaData::Id() const
{
    return qMax(-1, m_metaData.value("id").toInt(-1)); // a fraction is none
}

QString UIPluginMetaData::Version() const { return m_metaData.value("version").toString(); }

bool UIPluginMetaData::IsBottomPage() const { return m_metaData.value("place").toString() == "bottom"; }

QString UIPluginMetaData::Title() const { return m_metaData.value("title").toString(); }

bool UIPluginMetaData::BelongsToCamera() const { return Page() != "image"; }

bool UIPluginMetaData::BelongsToImage() const { return Page() != "camera"; }

QString UIPluginMetaData::Page() const { return m_metaData.value("page").toString("both"); }
