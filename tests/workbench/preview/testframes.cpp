// SPDX-License-Identifier: GPL-3.0-or-later
#include "testframes.h"

#include <cstring>

CameraFrame TestFrames::Make(int width, int height, PixelLayout layout, int shift)
{
    const int pixelBytes = BytesPerPixel(layout);
    const size_t rowBytes = size_t(width) * pixelBytes;
    std::shared_ptr<uchar> pixels(new uchar[rowBytes * height], std::default_delete<uchar[]>());
    const int fullScale = (1 << BitDepth(layout)) - 1;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            uchar *pixel = pixels.get() + rowBytes * y + size_t(x) * pixelBytes;
            const quint16 value = quint16((x + 10 * y + shift) % (fullScale + 1));
            if (layout == PixelLayout::Rgb8) {
                pixel[0] = uchar(x);
                pixel[1] = uchar(y);
                pixel[2] = uchar(shift);
            } else if (pixelBytes == 1) {
                *pixel = uchar(value);
            } else {
                std::memcpy(pixel, &value, sizeof value);
            }
        }
    }
    CameraFrame frame;
    frame.pixels = pixels;
    frame.width = width;
    frame.height = height;
    frame.strideBytes = int(rowBytes);
    frame.layout = layout;
    return frame;
}
