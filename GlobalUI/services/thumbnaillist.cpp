// SPDX-License-Identifier: GPL-3.0-or-later
#include "thumbnaillist.h"

#include "installedservice.h"

namespace {
InstalledService<ThumbnailList> installed("ThumbnailList");
}

ThumbnailList::ThumbnailList(QWidget *parent)
    : QWidget(parent)
{
    installed.Install(this);
}

ThumbnailList::~ThumbnailList()
{
    installed.Remove();
}

ThumbnailList *ThumbnailList::GetInstance()
{
    return installed.Required();
}
