// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calllog.h"
#include "thumbnaillist.h"

class FakeThumbnailList : public ThumbnailList
{
public:
    CompareSaver *compareSaver = nullptr;

    void SetCompareSubMenuChecked(bool checked) override
    {
        CallLog::Add("ThumbnailList::SetCompareSubMenuChecked", {Text(checked)});
    }
    CompareSaver *GetCompareSaver() const override { return compareSaver; }
    void slotSetSelectButtonVisible(bool visible) override
    {
        CallLog::Add("ThumbnailList::slotSetSelectButtonVisible", {Text(visible)});
    }
    void slotAddThumbnail(QImage) override { CallLog::Add("ThumbnailList::slotAddThumbnail", {}); }
    void slotAddToThumbnailList(QString fileName) override
    {
        CallLog::Add("ThumbnailList::slotAddToThumbnailList", {fileName});
    }
};
