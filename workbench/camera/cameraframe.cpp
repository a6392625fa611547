// SPDX-License-Identifier: GPL-3.0-or-later
#include "cameraframe.h"

int BytesPerPixel(PixelLayout layout)
{
    switch (layout) {
    case PixelLayout::Mono8:
        return 1;
    case PixelLayout::Mono12:
    case PixelLayout::Mono16:
        return 2;
    case PixelLayout::Rgb8:
        return 3;
    }
    return 0;
}

int BitDepth(PixelLayout layout)
{
    switch (layout) {
    case PixelLayout::Mono12:
        return 12;
    case PixelLayout::Mono16:
        return 16;
    case PixelLayout::Mono8:
    case PixelLayout::Rgb8:
        return 8;
    }
    return 0;
}

QString PixelLayoutName(PixelLayout layout)
{
    switch (layout) {
    case PixelLayout::Mono8:
        return QStringLiteral("Mono8");
    case PixelLayout::Mono12:
        return QStringLiteral("Mono12");
    case PixelLayout::Mono16:
        return QStringLiteral("Mono16");
    case PixelLayout::Rgb8:
        return QStringLiteral("RGB8");
    }
    return QString();
}
