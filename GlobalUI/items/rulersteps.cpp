// SPDX-License-Identifier: GPL-3.0-or-later
#include "rulersteps.h"

#include <cmath>
#include <limits>
#include <string>

int RoundUpToLeadingDigit(double x)
{
    constexpr double Largest = std::numeric_limits<int>::max();
    if (std::isnan(x))
        return 0;
    const int value = int(std::fmin(std::fmax(std::ceil(x), -Largest), Largest));
    const int power = int(std::pow(10.0, double(std::to_string(value).size() - 1)));
    return int(std::fmin(std::ceil(double(value) / power) * power, Largest));
}

bool RulerSteps::IsValid() const
{
    return majorStep > 0 && minorStep > 0 && minorsPerMajor > 0 && minorStepPx > 0.0;
}

RulerSteps ComputeRulerSteps(int imageLength, int visibleLength, int itemLength, int majorDivisions,
                             int minorDivisions)
{
    if (visibleLength < 1)
        return {0, 0, 0, 0, 0.0, 0.0};
    RulerSteps steps;
    steps.majorStep = RoundUpToLeadingDigit(double(visibleLength) / majorDivisions);
    steps.majorCount = int(std::ceil(double(imageLength) / steps.majorStep));
    steps.minorStep = RoundUpToLeadingDigit(std::ceil(double(steps.majorStep) / minorDivisions));
    steps.minorsPerMajor = int(std::ceil(double(steps.majorStep) / steps.minorStep));
    steps.scale = double(itemLength) / visibleLength;
    steps.minorStepPx = steps.minorStep * steps.scale;
    return steps;
}
