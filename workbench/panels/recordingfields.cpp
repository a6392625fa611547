// SPDX-License-Identifier: GPL-3.0-or-later
#include "recordingfields.h"

#include "runwriter.h"
#include "savesettings.h"

namespace {

constexpr double MsPerSecond = 1000.0;
constexpr int MsPerMinute = 60000;

TIME_MIN_S_MS TimeOf(double seconds)
{
    const int ms = qRound(seconds * MsPerSecond);
    TIME_MIN_S_MS time;
    time.minutes = ms / MsPerMinute;
    time.seconds = ms % MsPerMinute / 1000;
    time.milliseconds = ms % 1000;
    return time;
}

} // namespace

RecordingFields::RecordingFields(SaveSettings *settings, const Example &example, QObject *parent)
    : FieldSource(AcquisitionName, parent)
    , m_settings(settings)
    , m_example(example)
    , m_pattern(settings->Get().pattern)
{
    connect(settings, &SaveSettings::signalChanged, this, [this] {
        m_pattern = m_settings->Get().pattern;
        emit signalChanged();
    });
}

PanelFields RecordingFields::Fields() const
{
    PanelFields fields;
    AddRun(fields, m_settings->Get());
    AddFile(fields, m_settings->Get());
    for (PanelField &field : fields)
        field.isEnabled &= !m_isBusy;
    return fields;
}

void RecordingFields::AddRun(PanelFields &fields, const RecordingSettings &settings) const
{
    using Mode = RecordingSettings::Mode;
    fields << PanelField::MakeChoice("mode", tr("Record"), int(settings.mode),
                     {tr("One frame"), tr("Number of frames"), tr("Duration"), tr("Until stopped")});
    fields << PanelField::MakeNumber("frames", tr("Frames"), settings.frames, 1, RecordingSettings::MostFrames, 0, tr(" frames"));
    fields.last().isEnabled = settings.mode == Mode::Count;
    fields << PanelField::MakeNumber("seconds", tr("Time"), settings.seconds, 1, RecordingSettings::MostSeconds, 0, tr(" s"));
    fields.last().isEnabled = settings.mode == Mode::Duration;
    fields << PanelField::MakeNumber("delay", tr("Delay before it"), settings.DelayMs() / MsPerSecond, 0,
                     RecordingSettings::MostDelayMinutes * 60.0, 3, tr(" s"));
    fields.last().zeroText = tr("none");
    fields << PanelField::MakeNumber("interval", tr("Interval"), settings.intervalMs / MsPerSecond, 0,
                     RecordingSettings::LongestIntervalMs / MsPerSecond, 3, tr(" s"));
    fields.last().zeroText = tr("every frame");
    fields.last().isEnabled = settings.mode != Mode::Single;
    for (PanelField &field : fields)
        field.group = tr("Recording");
}

void RecordingFields::AddFile(PanelFields &fields, const RecordingSettings &settings) const
{
    const int first = fields.size();
    fields << PanelField::MakeChoice("target", tr("Save"), settings.toRam ? 1 : 0, {tr("To disk"), tr("To memory, then to disk")});
    fields << PanelField::MakeChoice("format", tr("Format"), int(settings.format),
                     {tr("TIFF"), tr("FITS cube"), tr("PNG sequence")});
    fields << PanelField::Make(PanelField::Kind::Folder, "folder", tr("Folder"), settings.Folder());
    fields << PanelField::Make(PanelField::Kind::Text, "pattern", tr("Name"), m_pattern);
    fields.last().toolTip = tr("{camera}, {date}, {time}, {exposure}, {gain}, {number} and {number:4} are filled in.");
    fields << PanelField::Make(PanelField::Kind::Note, "name", tr("Next file"), NameText(settings));
    fields << PanelField::MakeNumber("queue", tr("Waiting frames"), settings.queueMB, RecordingSettings::LeastQueueMB,
                     RecordingSettings::MostQueueMB, 0, tr(" MB"));
    fields.last().toolTip = tr("Memory for frames that wait while the disk is busy.");
    SetGroup(fields, first, tr("File"));
}

QString RecordingFields::NameText(const RecordingSettings &settings) const
{
    const NamePattern pattern(m_pattern);
    return pattern.Fault().isEmpty() ? pattern.Name(m_example(), 1) + '.' + RunSuffix(settings.format)
                                     : pattern.Fault();
}

void RecordingFields::Set(const QString &key, const QVariant &value)
{
    if (m_isBusy)
        return;
    RecordingSettings settings = m_settings->Get();
    if (key == "mode")
        settings.mode = RecordingSettings::Mode(qBound(0, value.toInt(), int(RecordingSettings::Mode::UntilStopped)));
    else if (key == "frames")
        settings.frames = value.toInt();
    else if (key == "seconds")
        settings.seconds = value.toInt();
    else if (key == "delay")
        settings.delay = TimeOf(value.toDouble());
    else if (key == "interval")
        settings.intervalMs = qRound(value.toDouble() * MsPerSecond);
    else if (key == "target")
        settings.toRam = value.toInt() == 1;
    else if (key == "format")
        settings.format = RunFormat(qBound(0, value.toInt(), int(RunFormat::Png)));
    else if (key == "folder")
        settings.folder = value.toString().trimmed();
    else if (key == "queue")
        settings.queueMB = value.toInt();
    else if (key == "pattern")
        m_pattern = value.toString();
    else
        return;
    if (key == "pattern" && NamePattern(m_pattern).Fault().isEmpty())
        settings.pattern = m_pattern;
    const QString typed = m_pattern;
    m_settings->Set(settings.Valid());
    m_pattern = typed;
    emit signalChanged();
}

void RecordingFields::SetBusy(bool busy)
{
    m_isBusy = busy;
    emit signalChanged();
}
