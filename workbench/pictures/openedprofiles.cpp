// SPDX-License-Identifier: GPL-3.0-or-later
#include "openedprofiles.h"

#include "picturelevels.h"
#include "spectrumuimanager.h"

#include <algorithm>

OpenedProfiles::OpenedProfiles(PictureLevels *levels, QObject *parent)
    : QObject(parent)
    , m_levels(levels)
{
}

void OpenedProfiles::SetPicture(const Picture &picture) { m_picture = picture; }

void OpenedProfiles::Forget()
{
    SetPicture(Picture());
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
    if (!m_curves.Make(m_picture))
        return;
    const SpectrumUIManager *pages = SpectrumUIManager::GetInstance();
    const bool isPlotSeen = pages->IsDisplayMode2D() || pages->IsDisplayMode2DPeak();
    PictureCurves::Curve &row = m_curves.Row();
    Prepare(&row, isPlotSeen);
    emit signalRow(row.samples.data(), int(row.samples.size()), row.offset, row.count);
    PictureCurves::Curve &column = m_curves.Column();
    Prepare(&column, isPlotSeen);
    emit signalColumn(column.samples.data(), int(column.samples.size()), column.offset, column.count);
}

void OpenedProfiles::Prepare(PictureCurves::Curve *curve, bool isOfPlot)
{
    if (isOfPlot)
        curve->ShowAll();
    m_levels->SetCurveFactor(isOfPlot ? curve->FinestFactor() : m_levels->Factor());
    curve->Tell(m_levels->GetCurveFactor());
}

std::vector<double> OpenedProfiles::Values(bool alongRow) const
{
    PictureCurves curves = m_curves;
    if (!curves.Make(m_picture))
        return {};
    return alongRow ? curves.Row().values : curves.Column().values;
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
