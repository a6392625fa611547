// SPDX-License-Identifier: GPL-3.0-or-later
#include "shortfilename.h"

#include <QFileInfo>

QString ShortFileName(const QString &fileName)
{
    constexpr int LongestBaseName = 20;
    constexpr int KeptHead = 16;
    constexpr int KeptTail = 4;

    const QFileInfo file(fileName);
    const QString baseName = file.baseName();
    if (baseName.size() <= LongestBaseName)
        return fileName;
    return baseName.left(KeptHead) + "..." + baseName.right(KeptTail) + "." + file.suffix();
}
