// SPDX-License-Identifier: GPL-3.0-or-later
#include "picturelist.h"

#include "comparisonsaving.h"

#include <QLabel>
#include <QVBoxLayout>

PictureList::PictureList(QWidget *parent)
    : ThumbnailList(parent)
    , m_comparisonSaving(new ComparisonSaving(this))
{
    auto *column = new QVBoxLayout(this);
    auto *label = new QLabel(tr("No picture is open."));
    label->setObjectName("labelNoPicture");
    label->setAlignment(Qt::AlignCenter);
    label->setEnabled(false);
    column->addWidget(label);
}

void PictureList::SetCompareSubMenuChecked(bool) {}

CompareSaver *PictureList::GetCompareSaver() const
{
    return m_comparisonSaving;
}

void PictureList::slotSetSelectButtonVisible(bool) {}

void PictureList::slotAddThumbnail(QImage) {}

void PictureList::slotAddToThumbnailList(QString) {}
