// SPDX-License-Identifier: GPL-3.0-or-later
#include "runsummary.h"

#include "runchecksum.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTextStream>

namespace {

constexpr int ListedGaps = 50;
constexpr double NsPerSecond = 1e9;

QString Translate(const char *text) { return QCoreApplication::translate("RunSummary", text); }

struct StageRow
{
    LossStage stage;
    const char *text;
};

const StageRow stageTable[] = {
    { LossStage::Camera, QT_TRANSLATE_NOOP("RunSummary", "never arrived from the camera") },
    { LossStage::Transfer, QT_TRANSLATE_NOOP("RunSummary", "arrived incomplete") },
    { LossStage::SaveQueue, QT_TRANSLATE_NOOP("RunSummary", "the disk was too slow and the queue full") },
    { LossStage::Disk, QT_TRANSLATE_NOOP("RunSummary", "could not be written to the disk") },
};

QString LostText(const FrameCounts &counts)
{
    QStringList parts;
    for (const StageRow &row : stageTable) {
        if (const quint64 lost = counts.LostAt(row.stage))
            parts << QString("%1 %2").arg(lost).arg(Translate(row.text));
    }
    const QString total = QString::number(counts.Lost());
    return parts.isEmpty() ? total : QString("%1 (%2)").arg(total, parts.join(", "));
}

QString GapText(const IdGap &gap)
{
    return gap.count == 1 ? QString::number(gap.first)
                          : QString("%1-%2").arg(gap.first).arg(gap.first + gap.count - 1);
}

QString GapsText(const QVector<IdGap> &gaps)
{
    if (gaps.isEmpty())
        return Translate("none");
    QStringList texts;
    for (const IdGap &gap : gaps.mid(0, ListedGaps))
        texts << GapText(gap);
    if (gaps.size() > ListedGaps)
        texts << Translate("and %1 more").arg(gaps.size() - ListedGaps);
    return texts.join(", ");
}

void WriteLines(QTextStream &out, const QVector<std::pair<QString, QString>> &lines)
{
    for (const auto &line : lines)
        out << line.first << ": " << line.second << '\n';
}

} // namespace

QVector<IdGap> FindGaps(const QVector<FrameStamp> &stamps)
{
    QVector<IdGap> gaps;
    for (int i = 1; i < stamps.size(); ++i) {
        const quint64 expected = stamps[i - 1].frameId + 1;
        if (stamps[i].frameId > expected)
            gaps.append({ expected, stamps[i].frameId - expected });
    }
    return gaps;
}

double AverageRate(const QVector<FrameStamp> &stamps)
{
    if (stamps.size() < 2)
        return 0;
    const qint64 spanNs = stamps.last().hostTimeNs - stamps.first().hostTimeNs;
    return spanNs > 0 ? (stamps.size() - 1) * NsPerSecond / double(spanNs) : 0;
}

QVector<std::pair<QString, QString>> OutcomeLines(const RunOutcome &outcome,
                                                  const QVector<FrameStamp> &stamps)
{
    QString end = outcome.EndText();
    if (!outcome.reason.isEmpty())
        end += QString(" (%1)").arg(outcome.reason);
    QVector<std::pair<QString, QString>> lines{
        { Translate("Run"), end },
        { Translate("Frames captured"), QString::number(outcome.counts.captured) },
        { Translate("Frames saved"), QString::number(outcome.counts.saved) },
        { Translate("Frames lost"), LostText(outcome.counts) },
        { Translate("Frame ids missing"), GapsText(FindGaps(stamps)) },
        { Translate("Average rate"), Translate("%1 frames/s").arg(AverageRate(stamps), 0, 'f', 2) },
        { Translate("Checksum (XXH3)"), RunChecksum::ToText(RunChecksum::OfRun(stamps)) },
    };
    return lines;
}

QString RunSummaryPath(const QString &recording)
{
    const QFileInfo info(recording);
    return info.path() + '/' + info.completeBaseName() + ".txt";
}

bool WriteRunSummary(const QString &path, const RunFacts &facts, const RunOutcome &outcome,
                     const QVector<FrameStamp> &stamps, const QStringList &files)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Text))
        return false;
    QTextStream out(&file);
    out.setCodec("UTF-8");
    out << Translate("Recording") << ": " << QFileInfo(files.value(0)).fileName();
    if (files.size() > 1)
        out << " ... " << QFileInfo(files.last()).fileName();
    out << "\n\n";
    WriteLines(out, OutcomeLines(outcome, stamps));
    out << '\n';
    WriteLines(out, facts.Lines());
    out << '\n' << Translate("frame\tframe id\tcamera time (ns)\thost time (ns)") << '\n';
    for (int i = 0; i < stamps.size(); ++i)
        out << i + 1 << '\t' << stamps[i].frameId << '\t' << stamps[i].cameraTimeNs << '\t'
            << stamps[i].hostTimeNs << '\n';
    out.flush();
    return file.flush() && out.status() == QTextStream::Ok;
}
