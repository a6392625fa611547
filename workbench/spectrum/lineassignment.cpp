// SPDX-License-Identifier: GPL-3.0-or-later
#include "lineassignment.h"

#include "calibrationfit.h"
#include "linescreening.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>

namespace {

constexpr size_t strongPeaks = 16;
constexpr size_t cornersPerThird = 4; ///< of these every three are tried
constexpr int strongLines = 48; ///< of all lamps together
/// A parabola may miss a real dispersion by that share of the width.
constexpr double firstReachShare = 0.004;
/// How far a real dispersion bends away from a straight one in the middle, as a share of its range.
constexpr double mostBend = 0.05;
constexpr double leastScoreShare = 0.4;
constexpr double lastReachPixels = 1.5;
constexpr double goodRmsPixels = 0.6;
constexpr int leastMatches = 4;
/// A peak that far from its line belongs to another line or to two.
constexpr double strayPixels = 0.25;
/// A point that the others expect that far from where it is.
constexpr double unexpectedPixels = 3;
constexpr double errorPerPixelBeyond = 0.02;
constexpr size_t keptCandidates = 60;
/// How far the hinted range may be off at either end, as a share of it.
constexpr double hintReach = 0.1;

struct Candidate
{
    SpectralCalibration calibration; ///< a parabola
    double score = 0;
};

/// A faint line close to a strong one would only be taken for it.
bool IsOutshone(const LampLine &line, const QVector<LampLine> &lines)
{
    constexpr double closeNm = 2;
    constexpr double muchStronger = 20;
    return std::any_of(lines.begin(), lines.end(), [&](const LampLine &other) {
        return std::abs(other.nm - line.nm) < closeNm && other.strength > muchStronger * line.strength;
    });
}

QVector<CalibrationPoint> AllLines(const QVector<Lamp> &lamps)
{
    QVector<CalibrationPoint> lines;
    for (const Lamp lamp : lamps) {
        for (const LampLine &line : LinesOf(lamp)) {
            if (!IsOutshone(line, LinesOf(lamp)))
                lines.append({line.strength, line.nm, LampName(lamp)}); // the strength stands in for the pixel
        }
    }
    std::sort(lines.begin(), lines.end(), [](const CalibrationPoint &a, const CalibrationPoint &b) { return a.nm < b.nm; });
    return lines;
}

double NearestNm(const QVector<CalibrationPoint> &lines, double nm)
{
    const auto behind = std::lower_bound(lines.begin(), lines.end(), nm, [](const CalibrationPoint &line, double value) { return line.nm < value; });
    if (behind == lines.end())
        return (behind - 1)->nm;
    if (behind == lines.begin() || behind->nm - nm < nm - (behind - 1)->nm)
        return behind->nm;
    return (behind - 1)->nm;
}

class Assignment
{
public:
    Assignment(const std::vector<SpectralPeak> &peaks, const AssignmentHints &hints)
        : m_peaks(peaks)
        , m_hints(hints)
        , m_lines(AllLines(hints.lamps))
    {
        KeepLinesNearHints();
        m_strongPeaks = m_peaks;
        std::sort(m_strongPeaks.begin(), m_strongPeaks.end(), [](const SpectralPeak &a, const SpectralPeak &b) { return a.height > b.height; });
        m_strongPeaks.resize(std::min(m_strongPeaks.size(), strongPeaks));
        for (const Lamp lamp : hints.lamps)
            AddStrongLines(LampName(lamp));
        std::sort(m_strongLines.begin(), m_strongLines.end(), IsBefore);
    }

    QVector<CalibrationPoint> Best() const
    {
        QVector<CalibrationPoint> best;
        double bestScore = 0;
        for (const Candidate &candidate : Candidates()) {
            const QVector<CalibrationPoint> points = Refined(candidate);
            const double score = ScoreOf(points);
            if (score > bestScore) {
                best = points;
                bestScore = score;
            }
        }
        return best;
    }

private:
    bool HasRange() const { return m_hints.firstNm != m_hints.lastNm; }
    static bool IsBefore(const CalibrationPoint &a, const CalibrationPoint &b) { return a.nm < b.nm; }

    void AddStrongLines(const QString &lamp)
    {
        QVector<CalibrationPoint> lines;
        for (const CalibrationPoint &line : m_lines) {
            if (line.line == lamp)
                lines << line;
        }
        std::sort(lines.begin(), lines.end(), [](const CalibrationPoint &a, const CalibrationPoint &b) { return a.pixel > b.pixel; });
        m_strongLines += lines.mid(0, strongLines / m_hints.lamps.size());
    }

    void KeepLinesNearHints()
    {
        if (!HasRange())
            return;
        const double margin = hintReach * std::abs(m_hints.lastNm - m_hints.firstNm);
        const double low = std::min(m_hints.firstNm, m_hints.lastNm) - margin;
        const double high = std::max(m_hints.firstNm, m_hints.lastNm) + margin;
        const auto isOutside = [&](const CalibrationPoint &line) { return line.nm < low || line.nm > high; };
        m_lines.erase(std::remove_if(m_lines.begin(), m_lines.end(), isOutside), m_lines.end());
    }

    /// The parabola through three points, in the pixel normalised to -1 to 1: middle, slope and bend.
    struct Parabola
    {
        double middle, slope, bend;

        double At(double x) const { return middle + (slope + bend * x) * x; }
    };

    bool IsPlausible(const Parabola &parabola) const
    {
        if (std::abs(parabola.bend) > mostBend * 2 * std::abs(parabola.slope))
            return false;
        if (!HasRange())
            return parabola.At(-1) > 0 && parabola.At(1) > 0;
        const double reach = hintReach * std::abs(m_hints.lastNm - m_hints.firstNm);
        return std::abs(parabola.At(-1) - m_hints.firstNm) < reach && std::abs(parabola.At(1) - m_hints.lastNm) < reach;
    }

    double Normalised(double pixel) const { return 2 * pixel / (m_hints.width - 1) - 1; }

    /// Strong peaks that have a line, and strong lines that have a strong peak.
    double QuickScore(const Parabola &parabola) const
    {
        const double reachNm = firstReachShare * 2 * std::abs(parabola.slope);
        double score = 0;
        for (const SpectralPeak &peak : m_strongPeaks) {
            const double nm = parabola.At(Normalised(peak.position));
            const double off = std::abs(NearestNm(m_lines, nm) - nm) / reachNm;
            score += off < 1 ? 1 - 0.5 * off : 0;
            const double offStrong = std::abs(NearestNm(m_strongLines, nm) - nm) / reachNm;
            score += offStrong < 1 ? 1 - 0.5 * offStrong : 0;
        }
        return score;
    }

    /// The strongest peaks among the first, the middle and the last third of all, so that a parabola through one of each
    /// holds nearly everywhere.
    std::array<std::vector<double>, 3> Corners() const
    {
        std::array<std::vector<double>, 3> corners;
        for (size_t third = 0; third < corners.size(); ++third) {
            std::vector<SpectralPeak> peaks(m_peaks.begin() + std::ptrdiff_t(third * m_peaks.size() / 3),
                                            m_peaks.begin() + std::ptrdiff_t((third + 1) * m_peaks.size() / 3));
            std::sort(peaks.begin(), peaks.end(), [](const SpectralPeak &a, const SpectralPeak &b) { return a.height > b.height; });
            peaks.resize(std::min(peaks.size(), cornersPerThird));
            for (const SpectralPeak &peak : peaks)
                corners[third].push_back(Normalised(peak.position));
        }
        return corners;
    }

    std::vector<Candidate> Candidates() const
    {
        std::vector<Candidate> candidates;
        const std::array<std::vector<double>, 3> corners = Corners();
        for (const double left : corners[0]) {
            for (const double middle : corners[1]) {
                for (const double right : corners[2])
                    AddCandidates({left, middle, right}, &candidates);
            }
        }
        const size_t kept = std::min(candidates.size(), keptCandidates);
        std::partial_sort(candidates.begin(), candidates.begin() + std::ptrdiff_t(kept), candidates.end(),
                          [](const Candidate &a, const Candidate &b) { return a.score > b.score; });
        candidates.resize(kept);
        return candidates;
    }

    /// Three peaks against every three strong lines, rising and falling.
    void AddCandidates(const std::array<double, 3> &x, std::vector<Candidate> *candidates) const
    {
        const bool mayRise = !HasRange() || m_hints.lastNm > m_hints.firstNm;
        const bool mayFall = !HasRange() || m_hints.lastNm < m_hints.firstNm;
        for (int i = 0; i < m_strongLines.size(); ++i) {
            for (int j = i + 1; j < m_strongLines.size(); ++j) {
                for (int k = j + 1; k < m_strongLines.size(); ++k) {
                    const double nm[] = {m_strongLines[i].nm, m_strongLines[j].nm, m_strongLines[k].nm};
                    if (mayRise)
                        AddCandidate(x, {nm[0], nm[1], nm[2]}, candidates);
                    if (mayFall)
                        AddCandidate(x, {nm[2], nm[1], nm[0]}, candidates);
                }
            }
        }
    }

    void AddCandidate(const std::array<double, 3> &x, const std::array<double, 3> &nm, std::vector<Candidate> *candidates) const
    {
        const double first = (nm[1] - nm[0]) / (x[1] - x[0]);
        const double second = (nm[2] - nm[1]) / (x[2] - x[1]);
        Parabola parabola{};
        parabola.bend = (second - first) / (x[2] - x[0]);
        parabola.slope = first - parabola.bend * (x[0] + x[1]);
        parabola.middle = nm[0] - (parabola.slope + parabola.bend * x[0]) * x[0];
        if (!IsPlausible(parabola))
            return;
        const double score = QuickScore(parabola);
        if (score > leastScoreShare * double(m_strongPeaks.size()))
            candidates->push_back({SpectralCalibration({parabola.middle, parabola.slope, parabola.bend}, m_hints.width), score});
    }

    /// What a curve may be wrong by where it goes on far beyond the lines it was made from, pixels.
    static double FarFromOthers(const QVector<CalibrationPoint> &points, double pixel)
    {
        double nearest = points.size() < leastMatches ? 0 : std::numeric_limits<double>::infinity();
        for (const CalibrationPoint &point : points)
            nearest = point.pixel == pixel ? nearest : std::min(nearest, std::abs(point.pixel - pixel));
        return errorPerPixelBeyond * nearest;
    }

    /// Each line with its nearest peak, where each is the other's nearest. A line close to a stronger one is not told
    /// apart from it.
    QVector<CalibrationPoint> Matches(const SpectralCalibration &calibration, double leastReach, const QVector<CalibrationPoint> &known) const
    {
        QVector<CalibrationPoint> points;
        for (const SpectralPeak &peak : m_peaks) {
            const double nm = calibration.Wavelength(peak.position);
            const double pixelNm = std::abs(calibration.Dispersion(peak.position));
            const double reach = leastReach + FarFromOthers(known, peak.position);
            const CalibrationPoint *best = nullptr;
            for (const CalibrationPoint &line : m_lines) {
                const double off = std::abs(line.nm - nm);
                if (off > reach * pixelNm)
                    continue;
                const bool isBetter = !best || (std::abs(line.nm - best->nm) < pixelNm ? line.pixel > best->pixel : off < std::abs(best->nm - nm));
                best = isBetter ? &line : best;
            }
            if (best && NearestPeak(m_peaks, calibration.PixelAt(best->nm), reach + 1) == &peak)
                points.append({peak.position, best->nm, best->line});
        }
        return points;
    }

    CalibrationFit Fit(const QVector<CalibrationPoint> &points, int degree) const
    {
        return FitCalibration(points, std::min({m_hints.degree, degree, points.size() - 2}), m_hints.width);
    }

    QVector<CalibrationPoint> Refined(const Candidate &candidate) const
    {
        SpectralCalibration calibration = candidate.calibration;
        QVector<CalibrationPoint> points;
        int degree = 2;
        for (double reach = firstReachShare * m_hints.width; degree <= m_hints.degree + 2; reach = std::max(lastReachPixels, reach / 1.6)) {
            points = Matches(calibration, reach, {});
            const CalibrationFit fit = Fit(points, degree++);
            if (points.size() < leastMatches || !fit.IsGood())
                return {};
            calibration = fit.calibration;
        }
        // A wrong line far out bends the whole curve: without it others may match.
        for (const double reach : {lastReachPixels, 2 * lastReachPixels}) {
            points = WithoutStrays(Matches(calibration, reach, points));
            const CalibrationFit fit = Fit(points, m_hints.degree);
            if (!fit.IsGood())
                return {};
            calibration = fit.calibration;
        }
        return points;
    }

    /// The point that fits least, or is least expected by the others; -1 when all do.
    static int StrayOf(const CalibrationFit &fit, const QVector<CalibrationPoint> &points)
    {
        int stray = -1;
        double most = 1;
        for (int i = 0; i < fit.residualsPixel.size(); ++i) {
            const double off = std::abs(fit.residualsPixel[i]) / std::max(strayPixels, 3 * fit.rmsPixel);
            const double unexpected = fit.leaveOneOutErrors.isEmpty() ? 0 : std::abs(fit.leaveOneOutErrors[i]) / (unexpectedPixels + FarFromOthers(points, points[i].pixel));
            if (std::max(off, unexpected) <= most)
                continue;
            most = std::max(off, unexpected);
            stray = i;
        }
        return stray;
    }

    QVector<CalibrationPoint> WithoutStrays(QVector<CalibrationPoint> points) const
    {
        while (points.size() >= leastMatches) {
            const CalibrationFit fit = Fit(points, m_hints.degree);
            const int stray = StrayOf(fit, points);
            if (!fit.IsGood())
                break;
            if (stray < 0)
                return fit.rmsPixel <= goodRmsPixels ? points : QVector<CalibrationPoint>();
            points.remove(stray);
        }
        return {};
    }

    double ScoreOf(const QVector<CalibrationPoint> &points) const
    {
        if (points.isEmpty())
            return 0;
        const CalibrationFit fit = Fit(points, m_hints.degree);
        double score = points.size() / (1 + fit.rmsPixel);
        for (const SpectralPeak &peak : m_strongPeaks) {
            const auto isIt = [&](const CalibrationPoint &point) { return point.pixel == peak.position; };
            score -= std::any_of(points.begin(), points.end(), isIt) ? 0 : 1;
        }
        return score;
    }

    const std::vector<SpectralPeak> &m_peaks;
    const AssignmentHints m_hints;
    QVector<CalibrationPoint> m_lines; ///< rising wavelengths; `pixel` holds the strength
    QVector<CalibrationPoint> m_strongLines;
    std::vector<SpectralPeak> m_strongPeaks;
};

} // namespace

AssignedLines AssignLines(const std::vector<SpectralPeak> &peaks, const AssignmentHints &hints)
{
    AssignedLines assigned;
    const double width = UsualWidth(peaks);
    const int least = LeastScreenedPoints(hints.degree);
    const std::vector<SpectralPeak> used = PeaksOfWidth(peaks, width, least);
    const bool isEnough = used.size() >= size_t(leastMatches) && used.back().position > used.front().position && !hints.lamps.isEmpty() && hints.width > 1;
    const QVector<CalibrationPoint> best = isEnough ? Assignment(used, hints).Best() : QVector<CalibrationPoint>();
    const CalibrationFit fit = FitCalibration(best, std::min(hints.degree, best.size() - 2), hints.width);
    if (best.isEmpty() || !fit.IsGood())
        return assigned;
    const QVector<CalibrationPoint> apart = WithoutBlends(best, hints.lamps, fit.calibration, width, least);
    assigned.points = WithoutOutliers(apart, hints.degree, hints.width, least);
    assigned.oddWidths = int(peaks.size() - used.size());
    assigned.blends = best.size() - apart.size();
    assigned.outliers = apart.size() - assigned.points.size();
    return assigned;
}

CalibrationPoint NearestLine(const QVector<Lamp> &lamps, double nm, double reachNm)
{
    CalibrationPoint nearest;
    for (const Lamp lamp : lamps) {
        for (const LampLine &line : LinesOf(lamp)) {
            if (std::abs(line.nm - nm) > reachNm)
                continue;
            reachNm = std::abs(line.nm - nm);
            nearest.nm = line.nm;
            nearest.line = LampName(lamp);
        }
    }
    return nearest;
}

const SpectralPeak *NearestPeak(const std::vector<SpectralPeak> &peaks, double pixel, double reach)
{
    const SpectralPeak *nearest = nullptr;
    for (const SpectralPeak &peak : peaks) {
        const double off = std::abs(peak.position - pixel);
        if (off > reach || (nearest && off >= std::abs(nearest->position - pixel)))
            continue;
        nearest = &peak;
    }
    return nearest;
}
