// SPDX-License-Identifier: GPL-3.0-or-later
#include "bandpass.h"

#include "sampleplane.h"

#include <cmath>
#include <vector>

namespace {

/// Twice as wide and high, the other half being the mirror picture, so that the transform, which goes on periodically,
/// meets no step at the edges. Sizes that can't be transformed fast are first made larger with the last row and column.
cv::Mat Mirrored(const cv::Mat &values)
{
    const int width = cv::getOptimalDFTSize(values.cols);
    const int height = cv::getOptimalDFTSize(values.rows);
    cv::Mat larger;
    cv::copyMakeBorder(values, larger, 0, height - values.rows, 0, width - values.cols, cv::BORDER_REPLICATE);
    cv::Mat mirrored;
    cv::copyMakeBorder(larger, mirrored, 0, height, 0, width, cv::BORDER_REFLECT);
    return mirrored;
}

/// 2^-(f * length)^2 for the wave numbers 0 to `count` - 1 of a transform of `size`. A Gaussian of the length of the
/// frequency is the product of those of its two parts.
std::vector<double> Flank(int size, double length)
{
    std::vector<double> flank(static_cast<size_t>(size));
    for (int i = 0; i < size; ++i) {
        const double frequency = double(qMin(i, size - i)) / size;
        flank[size_t(i)] = std::exp2(-std::pow(frequency * length, 2));
    }
    return flank;
}

/// Wave number of a column of OpenCV's packed spectrum: real part of 0, then real and imaginary parts in turn.
int WaveOfPacked(int index) { return (index + 1) / 2; }

/// `spectrum` is packed as cv::dft() packs a real picture: pairs along the rows; the first column, and with an even
/// width the last, are packed along the column.
template <typename Value>
void Weight(cv::Mat &spectrum, const BandPassSettings &settings)
{
    const std::vector<double> smallX = Flank(spectrum.cols, settings.smallest);
    const std::vector<double> smallY = Flank(spectrum.rows, settings.smallest);
    const std::vector<double> largeX = Flank(spectrum.cols, settings.largest);
    const std::vector<double> largeY = Flank(spectrum.rows, settings.largest);
    const bool takesLargeAway = settings.largest > 0;
    for (int row = 0; row < spectrum.rows; ++row) {
        Value *values = spectrum.ptr<Value>(row);
        for (int column = 0; column < spectrum.cols; ++column) {
            const bool isPackedAlongColumn = column == 0 || column == spectrum.cols - 1;
            const size_t x = size_t(WaveOfPacked(column));
            const size_t y = size_t(isPackedAlongColumn ? WaveOfPacked(row) : row);
            if (x == 0 && y == 0)
                continue; // the mean
            const double large = takesLargeAway ? largeX[x] * largeY[y] : 0;
            values[column] = Value(values[column] * smallX[x] * smallY[y] * (1 - large));
        }
    }
}

BandPassSettings Within(const BandPassSettings &settings)
{
    return { qBound(0.0, settings.smallest, BandPassSettings::MostLength),
             qBound(0.0, settings.largest, BandPassSettings::MostLength) };
}

} // namespace

double BandPassGain(double frequency, const BandPassSettings &settings)
{
    const BandPassSettings within = Within(settings);
    const double small = std::exp2(-std::pow(frequency * within.smallest, 2));
    const double large = within.largest > 0 ? std::exp2(-std::pow(frequency * within.largest, 2)) : 0;
    return small * (1 - large);
}

Picture BandPassed(const Picture &picture, const BandPassSettings &settings)
{
    const BandPassSettings within = Within(settings);
    return ProcessPlanes(picture, [&](cv::Mat &values) {
        cv::Mat spectrum = Mirrored(values); // always of even sides
        cv::dft(spectrum, spectrum);
        if (spectrum.depth() == CV_32F)
            Weight<float>(spectrum, within);
        else
            Weight<double>(spectrum, within);
        cv::idft(spectrum, spectrum, cv::DFT_SCALE | cv::DFT_REAL_OUTPUT);
        spectrum(cv::Rect(0, 0, values.cols, values.rows)).copyTo(values);
    });
}
