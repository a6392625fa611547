// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

enum class PictureFormat { Unknown, Tiff, Fits, Png, Jpeg, Bmp, Spe };

/// Bytes from the start of a file that tell its format: an SPE file has its mark near the end of a long header.
constexpr int FormatSignatureBytes = 3000;
/// What a file is by its first bytes, whatever its name says.
PictureFormat FormatOfContent(const QByteArray &firstBytes);
/// What a file's name promises; Unknown for other endings.
PictureFormat FormatOfName(const QString &path);
/// For the user: "TIFF".
QString FormatName(PictureFormat format);
/// Endings in lower case without a dot, the usual one first.
QStringList FormatSuffixes(PictureFormat format);
/// Those of all formats that can be opened.
QStringList OpenableSuffixes();
