// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

/// The place where the one object of a service stands while it lives. Each service's source file
/// holds one; the service's constructor installs the object, its destructor takes it out.
template<class Service>
class InstalledService
{
public:
    explicit constexpr InstalledService(const char *name)
        : m_name(name)
    {
    }

    void Install(Service *service)
    {
        if (m_service)
            qFatal("GlobalUI: a second %s is installed", m_name);
        m_service = service;
    }

    void Remove() { m_service = nullptr; }

    /// The installed object, or null.
    Service *Optional() const { return m_service; }

    /// The installed object; without one the program stops and says which service is missing.
    Service *Required() const
    {
        if (!m_service)
            qFatal("GlobalUI: no %s is installed", m_name);
        return m_service;
    }

private:
    const char *m_name;
    Service *m_service = nullptr;
};
