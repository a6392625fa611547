// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

/// A text of the header of an SPE file: Latin 1, filled up with spaces or with NUL.
QString SpeText(const QByteArray &bytes, int offset, int size);
