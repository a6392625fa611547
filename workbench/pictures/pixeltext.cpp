// SPDX-License-Identifier: GPL-3.0-or-later
#include "pixeltext.h"

#include "picture.h"

#include <QRect>
#include <QStringList>

namespace {

/// As many digits as the type can tell.
constexpr int floatDigits = 7;
constexpr int doubleDigits = 15;

QString SampleText(float sample) { return QString::number(double(sample), 'g', floatDigits); }
QString SampleText(double sample) { return QString::number(sample, 'g', doubleDigits); }
template <typename Integer>
QString SampleText(Integer sample)
{
    return QString::number(qint64(sample));
}

} // namespace

QString PixelText(const Picture &picture, const QPoint &pixel)
{
    if (!QRect(QPoint(0, 0), picture.Size()).contains(pixel))
        return QString();
    QStringList texts;
    VisitSampleType(picture.Type(), [&](auto sample) {
        const auto *samples = picture.Samples<decltype(sample)>(pixel.y()) + pixel.x() * picture.Channels();
        for (int channel = 0; channel < picture.Channels(); ++channel)
            texts << SampleText(samples[channel]);
    });
    return texts.size() == 1 ? texts.first() : QString("(%1)").arg(texts.join(", "));
}
