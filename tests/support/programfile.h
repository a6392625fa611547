// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

// The parts of a Windows program file with version information, for tests of its reader.

/// Text as it stands in the version information: two bytes a character and a closing zero.
QByteArray Wide(const QString &text);
QByteArray StringRecord(const QString &key, const QString &value);
/// The version information with these string records.
QByteArray VersionInformation(const QByteArray &strings);
/// A program file with nothing but headers and one section.
QByteArray ProgramFile(const QByteArray &sectionName, const QByteArray &section);
