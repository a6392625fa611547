// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrographsettings.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

struct Entry
{
    const char *name;
    double least;
    double most;
    double value;
};

QString NamesOf(const Entry *entries, int count)
{
    QStringList names;
    for (int i = 0; i < count; ++i)
        names << entries[i].name;
    return names.join(", ");
}

} // namespace

bool SpectrographSettings::Read(const QString &text, QString *fault)
{
    Entry entries[] = {
        { "tracks", 1, SpectrographOptics::MostTracks, double(geometry.tracks) },
        { "tilt", -0.1, 0.1, geometry.tiltPixelsPerRow },
        { "smile", -50, 50, geometry.smilePixels },
        { "dark", 0, 1e6, darkElectronsPerSecond },
        { "hot", 0, 1e5, hotPixelsPerMillion },
        { "cosmic", 0, 1e4, cosmicRaysPerSecond },
    };
    const int count = int(std::size(entries));
    QStringList seen;
    for (const QString &part : text.split(',')) {
        const QString name = part.section('=', 0, 0);
        Entry *entry = std::find_if(entries, entries + count, [&](const Entry &e) { return name == e.name; });
        if (entry == entries + count || seen.contains(name)) {
            *fault = QString("\"%1\" is not a setting of the spectrograph, or stands there twice. Each of these may be set "
                             "once, as in \"smile=3\": %2")
                         .arg(part, NamesOf(entries, count));
            return false;
        }
        seen << name;
        bool isNumber = false;
        entry->value = part.section('=', 1).toDouble(&isNumber);
        // Comparisons with what is no number are false.
        const bool isInside = entry->value >= entry->least && entry->value <= entry->most;
        if (!isNumber || !isInside || (entry == entries && entry->value != std::floor(entry->value))) {
            *fault = QString("\"%1\" needs a %2number from %3 to %4.")
                         .arg(part, entry == entries ? "whole " : "")
                         .arg(entry->least)
                         .arg(entry->most);
            return false;
        }
    }
    geometry = { int(entries[0].value), entries[1].value, entries[2].value };
    darkElectronsPerSecond = entries[3].value;
    hotPixelsPerMillion = entries[4].value;
    cosmicRaysPerSecond = entries[5].value;
    return true;
}
