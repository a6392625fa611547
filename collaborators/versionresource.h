// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

/// The resource section of a Windows program file, or empty when `path` is none. Reads headers and
/// that section only, at most 16 MiB.
QByteArray ReadResourceSection(const QString &path);

/// The string `key` (e.g. "ProductVersion") of the version information in a resource section; empty
/// when it is not there. Any content is safe: every length is checked against the section.
QString VersionString(const QByteArray &resourceSection, const QString &key);
