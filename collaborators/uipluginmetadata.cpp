// SPDX-License-Identifier: GPL-3.0-or-later
#include "uipluginmetadata.h"

#include "uiplugin.h"

namespace {

/// What is left of an interface's name without its version.
QString Unversioned(const QString &iid) { return iid.section('/', 0, 0); }

} // namespace

UIPluginMetaData::UIPluginMetaData(const QJsonObject &information, const QString &readError)
    : m_information(information)
    , m_metaData(information.value("MetaData").toObject())
    , m_readError(readError)
{
}

QString UIPluginMetaData::Fault(const QSet<int> &takenIds) const
{
    if (m_information.isEmpty())
        return m_readError.isEmpty() ? tr("it is not a plug-in")
                                     : tr("it is not a plug-in: %1").arg(m_readError);
    const QString fault = InterfaceFault();
    if (!fault.isEmpty())
        return fault;
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

QString UIPluginMetaData::InterfaceFault() const
{
    const QString own = GLOBALUI_UIPLUGIN_IID;
    const QString iid = m_information.value("IID").toString();
    if (Unversioned(iid) != Unversioned(own))
        return tr("it is a plug-in for another interface: \"%1\"").arg(iid);
    if (iid != own)
        return tr("it was built for the interface \"%1\", but this program has \"%2\": build it anew").arg(iid, own);
    // As the plug-in's compiler saw QT_VERSION: 0xMMNNPP.
    const int qtVersion = m_information.value("version").toInt();
    const int major = qtVersion >> 16;
    const int minor = (qtVersion >> 8) & 0xff;
    if (major != QT_VERSION_MAJOR || minor > QT_VERSION_MINOR)
        return tr("it was built for Qt %1.%2, but this program has Qt %3.%4: build it anew")
            .arg(major).arg(minor).arg(QT_VERSION_MAJOR).arg(QT_VERSION_MINOR);
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
