// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <arv.h> // before Qt, whose "signals" GLib uses as a name

#include <QString>

/// Receives the error of one Aravis call and frees it.
class AravisError
{
public:
    AravisError() = default;
    ~AravisError() { g_clear_error(&m_error); }
    AravisError(const AravisError &) = delete;
    AravisError &operator=(const AravisError &) = delete;

    /// For the call's last argument; forgets the error before.
    GError **Receive()
    {
        g_clear_error(&m_error);
        return &m_error;
    }
    bool IsSet() const { return m_error; }
    /// The camera said nothing, or is not there any more.
    bool IsSilence() const
    {
        return g_error_matches(m_error, ARV_DEVICE_ERROR, ARV_DEVICE_ERROR_TIMEOUT)
               || g_error_matches(m_error, ARV_DEVICE_ERROR, ARV_DEVICE_ERROR_NOT_CONNECTED);
    }
    QString Text() const { return m_error ? QString::fromUtf8(m_error->message) : QString(); }

private:
    GError *m_error = nullptr;
};
