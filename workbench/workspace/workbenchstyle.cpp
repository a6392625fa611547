// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbenchstyle.h"

#include <QPainter>

namespace {
constexpr qreal DisabledOpacity = 0.35;
}

WorkbenchStyle::WorkbenchStyle()
    : QProxyStyle(QStringLiteral("Fusion"))
{
}

QPixmap WorkbenchStyle::generatedIconPixmap(QIcon::Mode mode, const QPixmap &pixmap,
                                            const QStyleOption *option) const
{
    if (mode != QIcon::Disabled)
        return QProxyStyle::generatedIconPixmap(mode, pixmap, option);

    QPixmap faded(pixmap.size());
    faded.setDevicePixelRatio(pixmap.devicePixelRatio());
    faded.fill(Qt::transparent);
    QPainter painter(&faded);
    painter.setOpacity(DisabledOpacity);
    painter.drawPixmap(0, 0, pixmap);
    return faded;
}
