// SPDX-License-Identifier: GPL-3.0-or-later
#include "picturemenus.h"

#include "imagemanager.h"
#include "openedpicture.h"
#include "picturedesk.h"
#include "picturedialogs.h"
#include "viewrules.h"
#include "workbenchservices.h"
#include "workspace.h"
#include "workspaceconfig.h"

#include <QMenu>
#include <QUndoGroup>

#include <algorithm>

PictureMenus::PictureMenus(WorkbenchServices *services, PictureDialogs *dialogs, QObject *parent)
    : QObject(parent)
    , m_services(services)
    , m_dialogs(dialogs)
{
    connect(services->Config(), SIGNAL(signalUpdateImageControlUI()), this, SLOT(slotUpdate()));
}

void PictureMenus::FillFileMenu(QMenu *menu)
{
    menu->addAction(tr("&Open…"), m_dialogs, SLOT(slotAskForFiles()), QKeySequence("Ctrl+Shift+O"));
    m_save = menu->addAction(QString(), this, SLOT(slotSaveAs()));
    m_forPictures << m_save;
    m_forPictures << menu->addAction(tr("Image &Information…"), this, SLOT(slotInformation()),
                                     QKeySequence("Ctrl+I"));
    menu->addSeparator();
    m_forPictures << menu->addAction(tr("&Close"), this, SLOT(slotClose()), QKeySequence("Ctrl+Shift+W"));
    menu->addAction(tr("Close &All"), m_services->GetWorkspace(), SLOT(slotCloseAllImage()));
    slotUpdate();
}

void PictureMenus::FillEditMenu(QMenu *menu)
{
    QUndoGroup *undoGroup = m_services->Desk()->UndoGroup();
    QAction *undo = undoGroup->createUndoAction(menu, tr("&Undo"));
    undo->setShortcut(QKeySequence("Ctrl+Z"));
    QAction *redo = undoGroup->createRedoAction(menu, tr("&Redo"));
    redo->setShortcut(QKeySequence("Ctrl+Shift+Z"));
    menu->addActions({ undo, redo });
    menu->addSeparator();
    m_forPictures << menu->addAction(tr("&Crop"), this, SLOT(slotCrop()));
    slotUpdate();
}

void PictureMenus::FillViewMenu(QMenu *menu)
{
    const QList<QAction *> actions = menu->actions();
    const auto isSeparator = [](const QAction *action) { return action->isSeparator(); };
    QAction *behindViews = *std::find_if(actions.begin(), actions.end(), isSeparator);

    m_image = new QAction(tr("&Image"), menu);
    m_image->setShortcut(QKeySequence("Ctrl+E"));
    connect(m_image, SIGNAL(triggered()), this, SLOT(slotImage()));
    m_compare = new QAction(tr("C&ompare"), menu);
    m_compare->setCheckable(true);
    connect(m_compare, SIGNAL(triggered()), this, SLOT(slotCompare()));
    menu->insertActions(behindViews, { m_image, m_compare });
    slotUpdate();
}

void PictureMenus::slotUpdate()
{
    const int view = m_services->Config()->GetCurrentView();
    const bool isImagePage = view == ImageView || view == ImageCompareView;
    const bool isImage = isImagePage && m_services->GetWorkspace()->IsImageEnabled();
    for (QAction *action : qAsConst(m_forPictures))
        action->setEnabled(isImage);
    // The key belongs to the image page and saves the main picture; the menu saves the half that is worked on.
    m_save->setText(view == ImageCompareView ? tr("&Save Image As…") : tr("&Save Image As…\tF8"));
    if (!m_compare)
        return; // the menus are still being filled
    m_image->setEnabled(!m_services->Desk()->MainPicture()->IsNonImage());
    m_compare->setChecked(ViewRules::IsComparison(ViewCode(view)));
}

void PictureMenus::slotSaveAs() { m_services->GetWorkspace()->GetActiveImageManager()->slotSaveImageAs(); }

void PictureMenus::slotInformation() { m_services->GetWorkspace()->GetActiveImageManager()->slotImageInfo(); }

void PictureMenus::slotClose()
{
    const bool isSecond =
        m_services->GetWorkspace()->GetActiveImageManager() == m_services->Desk()->ComparePicture();
    const OpenedPicture *picture =
        isSecond ? m_services->Desk()->ComparePicture() : m_services->Desk()->MainPicture();
    if (PictureDocument *document = picture->Document())
        m_services->Desk()->RequestClose(document);
}

/// Two pictures side by side have no room for the frame.
void PictureMenus::slotCrop()
{
    if (m_services->Config()->GetCurrentView() == ImageView)
        m_services->GetWorkspace()->GetActiveImageManager()->slotImageCrop();
}

void PictureMenus::slotImage() { m_services->Config()->SetImageView(); }

void PictureMenus::slotCompare()
{
    slotUpdate(); // checked again when the comparison begins
    m_services->GetWorkspace()->slotSetCompareView();
}
