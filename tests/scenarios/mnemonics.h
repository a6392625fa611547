// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QStringList>

class QAction;

/// Of each menu, the letters that stand for more than one entry.
QStringList MnemonicsTakenTwice(const QList<QAction *> &actions, const QString &place);
