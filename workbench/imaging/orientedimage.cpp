// SPDX-License-Identifier: GPL-3.0-or-later
#include "orientedimage.h"

#include "pixelmove.h"

QImage OrientedImage(const QImage &image, Orientation orientation)
{
    if (image.isNull() || orientation == Orientation())
        return image;
    QImage target(orientation.Map(image.size()), image.format());
    if (!target.isNull()) {
        const PixelRows source{ image.constBits(), image.size(), image.bytesPerLine(), image.depth() / 8 };
        MovePixels(source, orientation, target.bits(), target.bytesPerLine());
    }
    return target;
}
