// SPDX-License-Identifier: GPL-3.0-or-later
#include "fileorder.h"

#include "namecollator.h"

#include <QRegularExpression>

#include <algorithm>
#include <numeric>
#include <vector>

namespace {

bool IsPattern(const QString &filter)
{
    return filter.contains('*') || filter.contains('?');
}

FileEntries Filtered(const FileEntries &entries, const QString &filter)
{
    if (filter.isEmpty())
        return entries;
    FileEntries kept;
    const QRegularExpression pattern(QRegularExpression::wildcardToRegularExpression(filter),
                                     QRegularExpression::CaseInsensitiveOption);
    const bool isPattern = IsPattern(filter);
    std::copy_if(entries.begin(), entries.end(), std::back_inserter(kept), [&](const FileEntry &entry) {
        return isPattern ? pattern.match(entry.name).hasMatch() : entry.name.contains(filter, Qt::CaseInsensitive);
    });
    return kept;
}

/// Places of the entries, in the order of their names.
std::vector<int> ByName(const FileEntries &entries)
{
    const QCollator collator = NameCollator();
    std::vector<QCollatorSortKey> keys;
    keys.reserve(size_t(entries.size()));
    for (const FileEntry &entry : entries)
        keys.push_back(collator.sortKey(entry.name));
    std::vector<int> places(size_t(entries.size()));
    std::iota(places.begin(), places.end(), 0);
    std::sort(places.begin(), places.end(), [&](int one, int other) {
        const int order = keys[size_t(one)].compare(keys[size_t(other)]);
        return order != 0 ? order < 0 : entries[one].name < entries[other].name;
    });
    return places;
}

QString SuffixOf(const QString &name)
{
    return name.mid(name.lastIndexOf('.') + 1).toLower();
}

/// Before, by anything but the name.
bool IsBefore(const FileEntry &one, const FileEntry &other, FileOrder::Key key)
{
    switch (key) {
    case FileOrder::ByDate:
        return one.modifiedMs < other.modifiedMs;
    case FileOrder::BySize:
        return one.bytes < other.bytes;
    case FileOrder::ByType:
        return SuffixOf(one.name) < SuffixOf(other.name);
    case FileOrder::ByName:
        break;
    }
    return false;
}

} // namespace

FileEntries Arranged(const FileEntries &entries, const FileOrder &order)
{
    const FileEntries kept = Filtered(entries, order.filter);
    std::vector<int> places = ByName(kept);
    if (order.descending && order.key == FileOrder::ByName)
        std::reverse(places.begin(), places.end());
    std::stable_sort(places.begin(), places.end(), [&](int one, int other) {
        return order.descending ? IsBefore(kept[other], kept[one], order.key)
                                : IsBefore(kept[one], kept[other], order.key);
    });
    FileEntries arranged;
    arranged.reserve(kept.size());
    for (const int place : places)
        arranged.append(kept[place]);
    return arranged;
}
