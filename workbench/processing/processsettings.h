// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include <tuple>
#include <variant>

/// What can be done to the samples of a picture, each with its settings. Values; lengths are pixels, levels are in units
/// of the samples. Numbers outside the limits given are moved to the nearest one.

/// Result: the type of the picture; what falls below its smallest value becomes that.
struct BackgroundSettings
{
    enum class Method {
        Constant, ///< `level` is taken away
        Opening,  ///< what is left of structures wider than the square of `radius`, smoothed, is taken away
        Plane     ///< the slope of the best plane is taken away; the mean stays
    };
    static constexpr int MostRadius = 500;

    Method method = Method::Opening;
    double level = 0;
    int radius = 50; ///< the square has 2 * radius + 1 pixels a side; 1 to MostRadius

    bool operator==(const BackgroundSettings &o) const
    {
        return std::tie(method, level, radius) == std::tie(o.method, o.level, o.radius);
    }
};

/// Result: the type of the picture. Where the reference is not above 0 the sample stays.
struct FlatFieldSettings
{
    QString reference; ///< file of the even field; its first frame is used

    bool operator==(const FlatFieldSettings &o) const { return reference == o.reference; }
};

/// Result: the type of the picture.
struct DenoiseSettings
{
    enum class Method {
        Gaussian, ///< of `sigma`
        Median,   ///< of the square of `radius`
        Bilateral ///< Gaussian of `sigma` in space and of `levelSigma` in the samples: edges stay
    };
    static constexpr double LeastSigma = 0.1;
    static constexpr double MostSigma = 50;
    static constexpr double MostBilateralSigma = 10;
    static constexpr int MostRadius = 5;

    Method method = Method::Gaussian;
    double sigma = 1.5;
    int radius = 1;
    double levelSigma = 20; ///< above 0

    bool operator==(const DenoiseSettings &o) const
    {
        return std::tie(method, sigma, radius, levelSigma) == std::tie(o.method, o.sigma, o.radius, o.levelSigma);
    }
};

/// Unsharp mask: `amount` of the difference from the Gaussian of `sigma` is added. Result: the type of the picture.
struct SharpenSettings
{
    static constexpr double MostAmount = 10;

    double sigma = 2.0; ///< limits of DenoiseSettings
    double amount = 1.0;

    bool operator==(const SharpenSettings &o) const
    {
        return std::tie(sigma, amount) == std::tie(o.sigma, o.amount);
    }
};

/// Result: 8 bit, 255 for samples from the level on and 0 below; what is no number is 0.
struct ThresholdSettings
{
    bool isAutomatic = true; ///< the level that separates two classes best, for each channel
    double level = 128;
    bool takesDark = false; ///< 255 below the level instead

    bool operator==(const ThresholdSettings &o) const
    {
        return std::tie(isAutomatic, level, takesDark) == std::tie(o.isAutomatic, o.level, o.takesDark);
    }
};

/// Of grey values, so of a picture with two values too. Result: the type of the picture.
struct MorphologySettings
{
    enum class Method { Erode, Dilate, Open, Close, TopHat };
    enum class Shape {
        Square, ///< 2 * radius + 1 pixels a side
        Disc    ///< pixels up to `radius` away
    };
    static constexpr int MostSquareRadius = 200;
    static constexpr int MostDiscRadius = 25;

    Method method = Method::Open;
    Shape shape = Shape::Disc;
    int radius = 2;

    bool operator==(const MorphologySettings &o) const
    {
        return std::tie(method, shape, radius) == std::tie(o.method, o.shape, o.radius);
    }
};

/// Each square of `size` pixels becomes one; what does not fill a square at the right and the bottom is left out.
/// Result: the type of the picture for the mean, halves rounded away from 0; for the sum one that holds it: 8 bit become 16 bit, 16 bit 32 bit, 32
/// bit integers 64-bit floating point; floating point stays.
struct BinningSettings
{
    static constexpr int MostSize = 16;

    int size = 2; ///< 2 to MostSize
    bool sums = false;

    bool operator==(const BinningSettings &o) const { return std::tie(size, sums) == std::tie(o.size, o.sums); }
};

/// Structures of about `smallest` to `largest` pixels stay, and the mean. In the frequency domain, with Gaussian flanks:
/// a wave of exactly either length keeps half its height. Result: the type of the picture.
struct BandPassSettings
{
    static constexpr double MostLength = 10000;

    double smallest = 3; ///< 0: all small structures stay
    double largest = 40; ///< 0: all large structures stay

    bool operator==(const BandPassSettings &o) const
    {
        return std::tie(smallest, largest) == std::tie(o.smallest, o.largest);
    }
};

/// The frames of a stack, or several pictures, become one, sample by sample. What is no number is left out. Result: the
/// type of the frames for maximum, minimum, mean and median; for the sum as in BinningSettings; floating point for the
/// standard deviation (of a sample: n - 1) and where fractions are kept.
struct ProjectionSettings
{
    enum class Method { Maximum, Minimum, Mean, Median, Sum, StandardDeviation };

    Method method = Method::Maximum;
    bool keepsFractions = false; ///< of mean and median

    bool operator==(const ProjectionSettings &o) const
    {
        return std::tie(method, keepsFractions) == std::tie(o.method, o.keepsFractions);
    }
};

/// The first frames of other files and the picture become one, as the frames of a stack do.
struct MergeSettings
{
    ProjectionSettings projection;
    QStringList others; ///< files

    bool operator==(const MergeSettings &o) const { return projection == o.projection && others == o.others; }
};

/// One step; without any, nothing is done.
using ProcessSettings =
    std::variant<std::monostate, BackgroundSettings, FlatFieldSettings, DenoiseSettings, SharpenSettings,
                 ThresholdSettings, MorphologySettings, BinningSettings, BandPassSettings, ProjectionSettings,
                 MergeSettings>;

inline bool IsNone(const ProcessSettings &settings) { return std::holds_alternative<std::monostate>(settings); }
