// SPDX-License-Identifier: GPL-3.0-or-later
#include "statisticsnotes.h"

#include "samplestatistics.h"

#include <QLocale>

namespace {

/// Significant digits of a mean or a deviation.
constexpr int Digits = 6;
constexpr int PercentDecimals = 3;

} // namespace

PanelFields StatisticsNotes::Of(const SampleStatistics &statistics, const QString &group)
{
    const QLocale locale;
    const bool isThere = statistics.count > 0;
    const QString none = QChar(0x2013);
    const auto number = [&](double value) { return isThere ? locale.toString(value, 'g', Digits) : none; };
    const double percent = isThere ? 100.0 * double(statistics.saturated) / double(statistics.count) : 0;
    const int most = (1 << statistics.bitDepth) - 1;
    return {
        PanelField::MakeNote(
            group, "depth", tr("Depth"),
            isThere ? tr("%1 bit, 0 to %2").arg(statistics.bitDepth).arg(locale.toString(most)) : none),
        PanelField::MakeNote(group, "minimum", tr("Minimum"),
                             isThere ? locale.toString(statistics.minimum) : none),
        PanelField::MakeNote(group, "maximum", tr("Maximum"),
                             isThere ? locale.toString(statistics.maximum) : none),
        PanelField::MakeNote(group, "mean", tr("Mean"), number(statistics.mean)),
        PanelField::MakeNote(group, "deviation", tr("Deviation"), number(statistics.deviation)),
        PanelField::MakeNote(group, "saturated", tr("Saturated"),
                             isThere ? tr("%1 %").arg(locale.toString(percent, 'f', PercentDecimals)) : none),
    };
}
