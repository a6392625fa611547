// SPDX-License-Identifier: GPL-3.0-or-later
#include "runestimate.h"

#include "availablememory.h"

#include <QCoreApplication>
#include <QStorageInfo>

#include <cmath>

namespace {

constexpr double MsPerSecond = 1000.0;
/// Kept free of frames, for the system and the rest of the program.
constexpr qint64 ReserveBytes = 256 << 20;
constexpr qint64 MemoryReserveShare = 10; ///< of the free memory at least a tenth

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(RunEstimate)
};

double KeptPerSecond(const RecordingSettings &settings, double framesPerSecond)
{
    return settings.intervalMs > 0 ? qMin(framesPerSecond, MsPerSecond / settings.intervalMs)
                                   : framesPerSecond;
}

qint64 FramesOf(const RecordingSettings &settings, double framesPerSecond)
{
    if (settings.EndsByFrames())
        return settings.FrameLimit();
    if (settings.EndsByItself())
        return qint64(std::ceil(settings.seconds * KeptPerSecond(settings, framesPerSecond)));
    return -1;
}

qint64 WithoutReserve(qint64 freeBytes, qint64 reserve)
{
    return freeBytes < 0 ? -1 : qMax(qint64(0), freeBytes - reserve);
}

qint64 FramesThatFit(qint64 bytes, qint64 frameBytes) { return bytes < 0 ? -1 : bytes / frameBytes; }

} // namespace

qint64 RunResources::MemoryForFrames() const
{
    return WithoutReserve(freeMemoryBytes, qMax(ReserveBytes, freeMemoryBytes / MemoryReserveShare));
}

RunResources RunResources::Read(const QString &folder)
{
    RunResources resources;
    const QStorageInfo storage(folder);
    if (storage.isValid() && storage.isReady())
        resources.freeDiskBytes = storage.bytesAvailable();
    resources.freeMemoryBytes = AvailableMemory();
    return resources;
}

RunEstimate RunEstimate::Make(const RecordingSettings &settings, qint64 frameBytes, double framesPerSecond,
                              const RunResources &resources)
{
    RunEstimate estimate;
    estimate.frames = FramesOf(settings, framesPerSecond);
    estimate.bytes = estimate.frames < 0 ? -1 : estimate.frames * frameBytes;
    const qint64 diskBytes = WithoutReserve(resources.freeDiskBytes, ReserveBytes);
    const qint64 onDisk = FramesThatFit(diskBytes, frameBytes);
    const qint64 inMemory = settings.toRam ? FramesThatFit(resources.MemoryForFrames(), frameBytes) : -1;
    estimate.framesThatFit = onDisk < 0 ? inMemory : inMemory < 0 ? onDisk : qMin(onDisk, inMemory);
    if (estimate.frames > MostRunFrames && (estimate.framesThatFit < 0 || estimate.framesThatFit > MostRunFrames)) {
        estimate.framesThatFit = MostRunFrames;
        estimate.warning = Text::tr("The run needs %1 frames, and a recording holds %2 at most.")
                               .arg(estimate.frames)
                               .arg(MostRunFrames);
        return estimate;
    }
    if (estimate.framesThatFit < 0)
        return estimate;
    const bool isMemory = estimate.framesThatFit == inMemory && inMemory != onDisk;
    const QString place = isMemory ? Text::tr("memory") : Text::tr("disk");
    const qint64 freeBytes = isMemory ? resources.freeMemoryBytes : resources.freeDiskBytes;
    const qint64 usableBytes = isMemory ? resources.MemoryForFrames() : diskBytes;
    if (estimate.framesThatFit == 0 || estimate.frames > estimate.framesThatFit) {
        estimate.warning =
            Text::tr("The run needs %1, and the %2 has %3 free, of which %4 are left to the system: room for %5 "
                      "frames.")
                .arg(estimate.bytes < 0 ? Text::tr("more than one frame") : ByteText(estimate.bytes), place,
                     ByteText(freeBytes), ByteText(freeBytes - usableBytes))
                .arg(estimate.framesThatFit);
    }
    return estimate;
}

QString ByteText(qint64 bytes)
{
    constexpr double Step = 1000.0;
    const char *units[] = { "kB", "MB", "GB", "TB" };
    double value = double(bytes) / Step;
    int unit = 0;
    while (value >= Step && unit < 3) {
        value /= Step;
        ++unit;
    }
    return QString("%1 %2").arg(value, 0, 'f', 1).arg(units[unit]);
}
