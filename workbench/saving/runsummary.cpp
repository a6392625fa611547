// SPDX-License-Identifier: GPL-3.0-or-later
#include "runsummary.h"

#include "runchecksum.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTextStream>

#include <algorithm>

namespace {

constexpr int ListedGaps = 50;
constexpr double NsPerSecond = 1e9;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(RunSummary)
};

struct StageRow
{
    LossStage stage;
    const char *text;
};

const StageRow stageTable[] = {
    { LossStage::Camera, QT_TRANSLATE_NOOP("RunSummary", "never arrived from the camera") },
    { LossStage::Transfer, QT_TRANSLATE_NOOP("RunSummary", "arrived incomplete") },
    { LossStage::SaveQueue, QT_TRANSLATE_NOOP("RunSummary", "the disk was too slow and the queue full") },
    { LossStage::Memory, QT_TRANSLATE_NOOP("RunSummary", "the memory was full") },
    { LossStage::Disk, QT_TRANSLATE_NOOP("RunSummary", "could not be written to the disk") },
};

QString LostText(const FrameCounts &counts)
{
    QStringList parts;
    for (const StageRow &row : stageTable) {
        if (const quint64 lost = counts.LostAt(row.stage))
            parts << QString("%1 %2").arg(lost).arg(Text::tr(row.text));
    }
    const QString total = QString::number(counts.Lost());
    return parts.isEmpty() ? total : QString("%1 (%2)").arg(total, parts.join(", "));
}

/// What waited for the disk died with the program, uncounted.
QString LostText(const RunOutcome &outcome)
{
    if (outcome.end != RunEnd::Repaired)
        return LostText(outcome.counts);
    return outcome.counts.Lost() == 0 ? Text::tr("not known")
                                      : Text::tr("not known, at least %1").arg(LostText(outcome.counts));
}

QVector<IdGap> GapsBetween(const QVector<FrameStamp> &stamps)
{
    QVector<IdGap> gaps;
    for (int i = 1; i < stamps.size(); ++i) {
        const quint64 expected = stamps[i - 1].frameId + 1;
        if (stamps[i].frameId > expected)
            gaps.append({ expected, stamps[i].frameId - expected });
    }
    return gaps;
}

/// In order, and what touches made one.
QVector<IdGap> Joined(QVector<IdGap> gaps)
{
    std::sort(gaps.begin(), gaps.end(), [](const IdGap &a, const IdGap &b) { return a.first < b.first; });
    QVector<IdGap> joined;
    for (const IdGap &gap : gaps) {
        if (!joined.isEmpty() && gap.first <= joined.last().first + joined.last().count)
            joined.last().count =
                qMax(joined.last().count, gap.first + gap.count - joined.last().first);
        else
            joined.append(gap);
    }
    return joined;
}

/// Beside the recording; `attempt` counts the names that were taken.
QString SummaryPath(const QString &recording, int attempt)
{
    const QFileInfo info(recording);
    if (attempt == 0)
        return info.path() + '/' + info.completeBaseName() + ".txt";
    return attempt == 1 ? recording + ".txt" : QString("%1.%2.txt").arg(recording).arg(attempt);
}

QString GapText(const IdGap &gap)
{
    return gap.count == 1 ? QString::number(gap.first)
                          : QString("%1-%2").arg(gap.first).arg(gap.first + gap.count - 1);
}

QString GapsText(const QVector<IdGap> &gaps)
{
    if (gaps.isEmpty())
        return Text::tr("none");
    QStringList texts;
    for (const IdGap &gap : gaps.mid(0, ListedGaps))
        texts << GapText(gap);
    if (gaps.size() > ListedGaps)
        texts << Text::tr("and %1 more").arg(gaps.size() - ListedGaps);
    return texts.join(", ");
}

void WriteLines(QTextStream &out, const QVector<std::pair<QString, QString>> &lines)
{
    for (const auto &line : lines)
        out << line.first << ": " << line.second << '\n';
}

void WriteText(QTextStream &out, const RunFacts &facts, const RunOutcome &outcome,
               const QVector<FrameStamp> &stamps, const QStringList &files)
{
    out.setCodec("UTF-8");
    out << Text::tr("Recording") << ": " << QFileInfo(files.value(0)).fileName();
    if (files.size() > 1)
        out << " ... " << QFileInfo(files.last()).fileName();
    out << "\n\n";
    WriteLines(out, OutcomeLines(facts, outcome, stamps));
    out << '\n';
    WriteLines(out, facts.Lines());
    out << '\n' << Text::tr("frame\tframe id\tcamera time (ns)\thost time (ns)") << '\n';
    for (int i = 0; i < stamps.size(); ++i)
        out << i + 1 << '\t' << stamps[i].frameId << '\t' << stamps[i].cameraTimeNs << '\t'
            << stamps[i].hostTimeNs << '\n';
    out.flush();
}

} // namespace

QVector<IdGap> MissingIds(const RunOutcome &outcome, const QVector<FrameStamp> &stamps)
{
    QVector<IdGap> gaps = GapsBetween(stamps);
    for (const IdGap &lost : outcome.lostIds) {
        const bool isBetween = !stamps.isEmpty() && lost.first > stamps.first().frameId
                               && lost.first < stamps.last().frameId;
        if (!isBetween)
            gaps.append(lost);
    }
    return Joined(gaps);
}

double AverageRate(const QVector<FrameStamp> &stamps)
{
    if (stamps.size() < 2)
        return 0;
    const qint64 spanNs = stamps.last().hostTimeNs - stamps.first().hostTimeNs;
    return spanNs > 0 ? (stamps.size() - 1) * NsPerSecond / double(spanNs) : 0;
}

QVector<std::pair<QString, QString>> OutcomeLines(const RunFacts &facts, const RunOutcome &outcome,
                                                  const QVector<FrameStamp> &stamps)
{
    QString end = outcome.EndText();
    if (!outcome.reason.isEmpty())
        end += QString(" (%1)").arg(outcome.reason);
    QVector<std::pair<QString, QString>> lines{
        { Text::tr("Run"), end },
        { Text::tr("Frames captured"), outcome.end == RunEnd::Repaired
                                            ? Text::tr("not known")
                                            : QString::number(outcome.counts.captured) },
        { Text::tr("Frames saved"), QString::number(outcome.counts.saved) },
        { Text::tr("Frames lost"), LostText(outcome) },
    };
    if (facts.intervalMs == 0)
        lines.append({ Text::tr("Frame ids missing"), GapsText(MissingIds(outcome, stamps)) });
    lines.append({ Text::tr("Average rate"), Text::tr("%1 frames/s").arg(AverageRate(stamps), 0, 'f', 2) });
    lines.append({ Text::tr("Checksum (XXH3)"), RunChecksum::ToText(RunChecksum::OfRun(stamps)) });
    return lines;
}

QString WriteRunSummary(const QString &recording, const RunFacts &facts, const RunOutcome &outcome,
                        const QVector<FrameStamp> &stamps, const QStringList &files, FileFault &fault)
{
    QFile file;
    for (int attempt = 0; !file.isOpen(); ++attempt) {
        file.setFileName(SummaryPath(recording, attempt));
        if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Text) && !file.exists()) {
            fault.Set(Text::tr("its summary could not be written"), DiskAdvice(), file.errorString());
            return QString();
        }
    }
    QTextStream out(&file);
    WriteText(out, facts, outcome, stamps, files);
    if (file.flush() && out.status() == QTextStream::Ok)
        return file.fileName();
    fault.Set(Text::tr("its summary could not be written"), DiskAdvice(), file.errorString());
    file.remove();
    return QString();
}
