// SPDX-License-Identifier: GPL-3.0-or-later
#include "mnemonics.h"

#include <QAction>
#include <QMap>
#include <QMenu>

QStringList MnemonicsTakenTwice(const QList<QAction *> &actions, const QString &place)
{
    QStringList taken;
    QMap<QChar, QString> texts;
    for (const QAction *action : actions) {
        const QString text = action->text();
        const int mark = text.indexOf('&');
        if (mark >= 0 && mark + 1 < text.size()) {
            const QChar letter = text.at(mark + 1).toUpper();
            if (texts.contains(letter))
                taken << QString("%1: %2, %3").arg(place, texts.value(letter), text);
            texts.insert(letter, text);
        }
        if (action->menu())
            taken += MnemonicsTakenTwice(action->menu()->actions(), place + " > " + text);
    }
    return taken;
}
