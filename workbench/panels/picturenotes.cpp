// SPDX-License-Identifier: GPL-3.0-or-later
#include "picturenotes.h"

#include "globalmanager.h"
#include "reportmanager.h"

PanelFields PictureNotes::Of(const QString &group)
{
    const ReportManager *report = GlobalManager::GetInstance()->GetReportManager();
    const QSize size = report->GetImageSize();
    const QString name = IsLive() ? tr("Live picture") : report->GetFileName();
    if (size.isEmpty())
        return { PanelField::MakeNote(group, "picture", tr("Name"), tr("There is no picture.")) };
    return {
        PanelField::MakeNote(group, "picture", tr("Name"), name),
        PanelField::MakeNote(group, "size", tr("Size"),
                             tr("%1 x %2 pixels").arg(size.width()).arg(size.height())),
    };
}

bool PictureNotes::IsLive()
{
    const GlobalManager *global = GlobalManager::GetInstance();
    return global->GetReportManager() == global->GetCameraReportManager();
}
