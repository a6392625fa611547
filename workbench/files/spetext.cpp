// SPDX-License-Identifier: GPL-3.0-or-later
#include "spetext.h"

QString SpeText(const QByteArray &bytes, int offset, int size)
{
    const QByteArray field = bytes.mid(offset, size);
    return QString::fromLatin1(field.constData(), int(qstrnlen(field.constData(), uint(field.size()))))
        .trimmed();
}
