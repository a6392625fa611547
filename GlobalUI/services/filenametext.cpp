// SPDX-License-Identifier: GPL-3.0-or-later
#include "filenametext.h"

#include <QFileInfo>

#include <algorithm>

QString FileNameText(const QString &name)
{
    const auto isControl = [](QChar letter) { return letter.category() == QChar::Other_Control; };
    if (std::none_of(name.begin(), name.end(), isControl))
        return name;
    QString text = name;
    for (QChar &letter : text) {
        if (letter == '\n' || letter == '\r')
            letter = QChar(0x23ce); // the sign of the return key
        else if (isControl(letter))
            letter = QChar::ReplacementCharacter;
    }
    return text;
}

QString FileNameTextOf(const QString &path) { return FileNameText(QFileInfo(path).fileName()); }
