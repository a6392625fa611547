// SPDX-License-Identifier: GPL-3.0-or-later
#include "liveprofiles.h"

#include "payloadlocker.h"

#include <QSettings>

#include <algorithm>

namespace {

constexpr char LinesKey[] = "spectrum/profileLines";
/// The contract counts frame sizes in 16 bits.
constexpr size_t LongestSide = 65535;

/// Left, top, right and bottom within 0 to 1; the whole picture for what is no region.
QRectF GuardedRegion(const QRectF &region)
{
    const auto part = [](double value) { return std::clamp(value, 0.0, 1.0); };
    // In the width and height slots it has right and bottom. Comparisons with what is no number are false.
    const bool isRegion = region.x() < region.width() && region.y() < region.height() && region.x() < 1
        && region.y() < 1 && region.width() > 0 && region.height() > 0;
    if (!isRegion)
        return QRectF(0, 0, 1, 1);
    return QRectF(part(region.x()), part(region.y()), part(region.width()), part(region.height()));
}

void CopyProfile(const std::vector<int> &profile, bool isReversed, int *target)
{
    if (isReversed)
        std::reverse_copy(profile.begin(), profile.end(), target);
    else
        std::copy(profile.begin(), profile.end(), target);
}

} // namespace

LiveProfiles::LiveProfiles(QSettings *settings, QObject *parent)
    : IntensityManager(parent)
    , m_settings(settings)
{
    m_lines = std::clamp(settings->value(LinesKey, 1).toInt(), 1, PickedProfiles::MostLines);
    for (std::vector<int> &buffer : m_buffers)
        buffer.resize(LongestSide);
    m_payload.region = m_pick.region;
    m_payload.horizontalFill = m_buffers[0].data();
    m_payload.verticalFill = m_buffers[1].data();
    m_payload.horizontalShow = m_buffers[2].data();
    m_payload.verticalShow = m_buffers[3].data();
    m_payload.lock = &m_lock;
}

void LiveProfiles::SetAnchorPoint(int x, int y, QRectF normalisedRect)
{
    {
        const std::lock_guard<std::mutex> lock(m_pickMutex);
        m_pick = { QPoint(x, y), GuardedRegion(normalisedRect) };
    }
    emit signalFrameWanted();
}

LiveProfiles::Pick LiveProfiles::CurrentPick() const
{
    const std::lock_guard<std::mutex> lock(m_pickMutex);
    return m_pick;
}

void LiveProfiles::SetWanted(bool wanted) { m_isWanted = wanted; }

void LiveProfiles::SetLines(int lines)
{
    lines = std::clamp(lines, 1, PickedProfiles::MostLines);
    if (lines == m_lines)
        return;
    m_lines = lines;
    m_settings->setValue(LinesKey, lines);
    emit signalLinesChanged(lines);
    emit signalFrameWanted();
}

/// The point is picked in the picture as it is seen, the samples lie as they were measured.
void LiveProfiles::Analyse(const AnalysedFrame &frame)
{
    const SampleView &samples = frame.samples;
    const bool fits = samples.width <= int(LongestSide) && samples.height <= int(LongestSide);
    if (!m_isWanted || samples.IsEmpty() || !fits)
        return;
    const Pick pick = CurrentPick();
    const QSize seenSize = frame.orientation.Map(QSize(samples.width, samples.height));
    const QPoint seen(std::clamp(pick.point.x(), 0, seenSize.width() - 1),
                      std::clamp(pick.point.y(), 0, seenSize.height() - 1));
    m_profiles.Extract(samples, frame.orientation.Inverse().Map(seen, seenSize), m_lines);
    Hand(frame, pick.region);
    QMetaObject::invokeMethod(this, &LiveProfiles::Announce, Qt::QueuedConnection);
}

/// In the GUI thread. What was wanted when the frame came may have been replaced by a spectrum since then.
void LiveProfiles::Announce()
{
    if (m_isWanted)
        emit SignalUpdateCurve(&m_payload);
}

void LiveProfiles::Hand(const AnalysedFrame &frame, const QRectF &region)
{
    const QSize size(frame.samples.width, frame.samples.height);
    const QSize seenSize = frame.orientation.Map(size);
    // The measured pixel that is seen at the top left.
    const QPoint corner = frame.orientation.Inverse().Map(QPoint(0, 0), seenSize);
    const bool isRowReversed = corner.x() != 0;
    const bool isColumnReversed = corner.y() != 0;
    const bool swaps = frame.orientation.SwapsSides();

    const PayloadLocker locker(&m_lock);
    CopyProfile(m_profiles.Row(), isRowReversed, swaps ? m_payload.verticalFill : m_payload.horizontalFill);
    CopyProfile(m_profiles.Column(), isColumnReversed, swaps ? m_payload.horizontalFill : m_payload.verticalFill);
    m_payload.horizontalSize = seenSize.width();
    m_payload.verticalSize = seenSize.height();
    m_payload.region = region;
    m_payload.leftLevel = frame.levels.left;
    m_payload.rightLevel = frame.levels.right;
}
