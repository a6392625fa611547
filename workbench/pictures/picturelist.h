// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "thumbnaillist.h"

class ComparisonSaving;

/// The list of opened pictures. Files can't be opened yet: it is empty and says so. Made by the
/// services; the tab that shows it owns it. GUI thread.
class PictureList : public ThumbnailList
{
    Q_OBJECT

public:
    explicit PictureList(QWidget *parent = nullptr);

    void SetCompareSubMenuChecked(bool checked) override;
    CompareSaver *GetCompareSaver() const override;

public slots:
    void slotSetSelectButtonVisible(bool visible) override;
    void slotAddThumbnail(QImage thumbnail) override;
    void slotAddToThumbnailList(QString fileName) override;

private:
    ComparisonSaving *m_comparisonSaving;
};
