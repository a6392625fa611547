// SPDX-License-Identifier: GPL-3.0-or-later
#include "runchecksum.h"

#include "openpicture.h"

#include <QtEndian>

#include <vector>
#include <xxhash.h>

namespace {

quint64 OfNumbers(std::vector<quint64> numbers)
{
    for (quint64 &number : numbers)
        number = qToLittleEndian(number);
    return XXH3_64bits(numbers.data(), numbers.size() * sizeof(quint64));
}

bool AddFrames(const QString &path, const std::function<bool()> &isCancelled, std::vector<quint64> *sums,
               QString *error)
{
    const std::unique_ptr<PictureFile> file = OpenPicture(path, *error);
    if (!file)
        return false;
    Picture frame;
    for (int i = 0; i < file->Info().frames; ++i) {
        if ((isCancelled && isCancelled()) || !file->ReadFrame(i, frame, *error))
            return false;
        const Picture &samples = frame;
        sums->push_back(RunChecksum::OfFrame(samples.Data(), samples.ByteCount()));
    }
    return true;
}

} // namespace

quint64 RunChecksum::OfFrame(const void *samples, qint64 bytes)
{
    return XXH3_64bits(samples, size_t(bytes));
}

quint64 RunChecksum::OfRun(const QVector<FrameStamp> &stamps)
{
    std::vector<quint64> sums;
    sums.reserve(size_t(stamps.size()));
    for (const FrameStamp &stamp : stamps)
        sums.push_back(stamp.checksum);
    return OfNumbers(sums);
}

bool RunChecksum::OfFiles(const QStringList &files, quint64 *checksum, QString *error,
                          const std::function<bool()> &isCancelled)
{
    std::vector<quint64> sums;
    for (const QString &path : files) {
        if (!path.endsWith(".txt") && !AddFrames(path, isCancelled, &sums, error))
            return false;
    }
    *checksum = OfNumbers(sums);
    return true;
}

QString RunChecksum::ToText(quint64 checksum) { return QString("%1").arg(checksum, 16, 16, QChar('0')); }
