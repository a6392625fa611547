// SPDX-License-Identifier: GPL-3.0-or-later
#include "recordingsettings.h"

#include <QDir>
#include <QSettings>
#include <QStandardPaths>

namespace {

constexpr int MsPerSecond = 1000;
constexpr int SecondsPerMinute = 60;
constexpr int LastFormat = int(RunFormat::Png);
constexpr int LastMode = int(RecordingSettings::Mode::UntilStopped);

const char Group[] = "recording";

} // namespace

qint64 RecordingSettings::DelayMs() const
{
    return (qint64(delay.minutes) * SecondsPerMinute + delay.seconds) * MsPerSecond + delay.milliseconds;
}

QString RecordingSettings::Folder() const
{
    if (!folder.isEmpty())
        return folder;
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    return QDir(pictures).exists() ? pictures : QDir::homePath();
}

RecordingSettings RecordingSettings::Valid() const
{
    RecordingSettings valid = *this;
    valid.frames = qBound(1, frames, MostFrames);
    valid.seconds = qBound(1, seconds, MostSeconds);
    valid.delay.minutes = qBound(0, delay.minutes, MostDelayMinutes);
    valid.delay.seconds = qBound(0, delay.seconds, SecondsPerMinute - 1);
    valid.delay.milliseconds = qBound(0, delay.milliseconds, MsPerSecond - 1);
    valid.intervalMs = qBound(0, intervalMs, LongestIntervalMs);
    valid.queueMB = qBound(LeastQueueMB, queueMB, MostQueueMB);
    if (!NamePattern(pattern).Fault().isEmpty())
        valid.pattern = NamePattern::Default();
    return valid;
}

void RecordingSettings::Write(QSettings *settings) const
{
    settings->beginGroup(Group);
    settings->setValue("mode", int(mode));
    settings->setValue("frames", frames);
    settings->setValue("seconds", seconds);
    settings->setValue("delayMs", DelayMs());
    settings->setValue("intervalMs", intervalMs);
    settings->setValue("toRam", toRam);
    settings->setValue("format", int(format));
    settings->setValue("folder", folder);
    settings->setValue("pattern", pattern);
    settings->setValue("queueMB", queueMB);
    settings->endGroup();
}

RecordingSettings RecordingSettings::Read(QSettings *settings)
{
    RecordingSettings read;
    settings->beginGroup(Group);
    read.mode = Mode(qBound(0, settings->value("mode", int(read.mode)).toInt(), LastMode));
    read.frames = settings->value("frames", read.frames).toInt();
    read.seconds = settings->value("seconds", read.seconds).toInt();
    const qint64 delayMs =
        qBound(qint64(0), settings->value("delayMs", 0).toLongLong(), qint64(LongestIntervalMs));
    read.delay.minutes = int(delayMs / (SecondsPerMinute * MsPerSecond));
    read.delay.seconds = int(delayMs / MsPerSecond % SecondsPerMinute);
    read.delay.milliseconds = int(delayMs % MsPerSecond);
    read.intervalMs = settings->value("intervalMs", read.intervalMs).toInt();
    read.toRam = settings->value("toRam", read.toRam).toBool();
    read.format = RunFormat(qBound(0, settings->value("format", int(read.format)).toInt(), LastFormat));
    read.folder = settings->value("folder").toString();
    read.pattern = settings->value("pattern", read.pattern).toString();
    read.queueMB = settings->value("queueMB", read.queueMB).toInt();
    settings->endGroup();
    return read.Valid();
}
