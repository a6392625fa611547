// SPDX-License-Identifier: GPL-3.0-or-later
#include "openedprofiles.h"

#include "spectrumuimanager.h"

#include <algorithm>

OpenedProfiles::OpenedProfiles(QObject *parent)
    : QObject(parent)
{
}

void OpenedProfiles::SetPicture(const Picture &picture, double factor)
{
    m_picture = picture;
    m_factor = factor;
}

void OpenedProfiles::Forget()
{
    SetPicture(Picture(), 1);
    m_curves.Forget();
}

void OpenedProfiles::Pick(const QPointF &point, const QRectF &region)
{
    m_curves.Pick(point, region);
    slotAnnounce();
}

void OpenedProfiles::PickMiddle(bool isAnew)
{
    if (isAnew || !m_curves.IsPicked())
        m_curves.Pick(QPointF(m_picture.Width() / 2.0, m_picture.Height() / 2.0), QRectF(0, 0, 1, 1));
}

void OpenedProfiles::slotSetLines(int lines)
{
    m_curves.SetLines(lines);
    slotAnnounce();
}

void OpenedProfiles::slotAnnounce()
{
    if (!m_curves.Make(m_picture, m_factor))
        return;
    const SpectrumUIManager *pages = SpectrumUIManager::GetInstance();
    if (pages->IsDisplayMode2D() || pages->IsDisplayMode2DPeak())
        m_curves.ShowAll();
    PictureCurves::Curve &row = m_curves.Row();
    emit signalRow(row.samples.data(), int(row.samples.size()), row.offset, row.count);
    PictureCurves::Curve &column = m_curves.Column();
    emit signalColumn(column.samples.data(), int(column.samples.size()), column.offset, column.count);
}

std::vector<double> OpenedProfiles::Values(bool alongRow) const
{
    PictureCurves curves = m_curves;
    if (!curves.Make(m_picture, m_factor))
        return {};
    const std::vector<int> &samples = alongRow ? curves.Row().samples : curves.Column().samples;
    std::vector<double> values(samples.begin(), samples.end());
    for (double &value : values)
        value /= m_factor;
    return values;
}

bool OpenedProfiles::IsSaturated(bool alongRow) const
{
    const std::vector<quint8> saturated = Saturated(alongRow);
    return std::find(saturated.begin(), saturated.end(), 1) != saturated.end();
}

ProfileBand OpenedProfiles::Lines(bool alongRow) const
{
    return alongRow ? m_curves.RowBand(m_picture.Size()) : m_curves.ColumnBand(m_picture.Size());
}
