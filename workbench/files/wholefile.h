// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

/// Writes a small file whole or not at all: what stood there before stays until the new one is on the disk. Any thread
/// but the GUI's. Empty when it was written, else what went wrong and what to do.
QString WriteWholeFile(const QString &path, const QByteArray &content);
