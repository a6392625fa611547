// SPDX-License-Identifier: GPL-3.0-or-later
#include "picturedialogs.h"

#include "faultnotice.h"
#include "informationdialog.h"
#include "openedpicture.h"
#include "picturedesk.h"
#include "picturedocument.h"
#include "pictureloader.h"
#include "savedialog.h"
#include "workbenchservices.h"
#include "workspace.h"

#include <QFileInfo>

namespace {

QString OpenFilter()
{
    QStringList patterns;
    for (const QString &suffix : OpenableSuffixes())
        patterns << "*." + suffix;
    return PictureDialogs::tr("Pictures (%1)").arg(patterns.join(' '));
}

QString SuggestedPath(const PictureDocument *document)
{
    const QFileInfo file(document->Path());
    return file.path() + '/' + file.completeBaseName();
}

} // namespace

PictureDialogs::PictureDialogs(WorkbenchServices *services, QWidget *window)
    : QObject(window)
    , m_services(services)
    , m_window(window)
    , m_faultNotice(new FaultNotice(window))
{
    for (const OpenedPicture *picture :
         { services->Desk()->MainPicture(), services->Desk()->ComparePicture() }) {
        connect(picture, SIGNAL(signalSaveAsWanted()), this, SLOT(slotAskWhereToSave()));
        connect(picture, SIGNAL(signalInformationWanted()), this, SLOT(slotShowInformation()));
    }
    connect(services->GetWorkspace(), SIGNAL(signalSaveComparisonWanted(QImage)), this,
            SLOT(slotAskWhereToSaveComparison(QImage)));
    connect(services->Desk(), SIGNAL(signalFault(QString)), m_faultNotice, SLOT(slotShowFault(QString)));
}

void PictureDialogs::slotAskForFiles()
{
    auto *dialog = new QFileDialog(m_window, tr("Open Pictures"));
    dialog->setObjectName("OpenDialog");
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    dialog->setFileMode(QFileDialog::ExistingFiles);
    dialog->setNameFilters({ OpenFilter(), tr("All files (*)") });
    if (const PictureDocument *shown = m_services->Desk()->MainPicture()->Document())
        dialog->setDirectory(QFileInfo(shown->Path()).path());
    connect(dialog, SIGNAL(filesSelected(QStringList)), this, SLOT(slotOpenFiles(QStringList)));
    dialog->open();
}

void PictureDialogs::slotOpenFiles(const QStringList &paths)
{
    m_services->Desk()->Open(paths, m_services->GetWorkspace()->PlaceForPictures());
}

void PictureDialogs::slotAskWhereToSave() { AskWhereToSave(qobject_cast<OpenedPicture *>(sender()), false); }

SaveDialog *PictureDialogs::AskWhereToSaveAll(const OpenedPicture *picture) { return AskWhereToSave(picture, true); }

SaveDialog *PictureDialogs::AskWhereToSave(const OpenedPicture *picture, bool wantsAllFrames)
{
    SaveDialog::Subject subject;
    subject.wantsAllFrames = wantsAllFrames;
    subject.suggestedPath = SuggestedPath(picture->Document());
    subject.type = picture->Shown().samples.Type();
    subject.channels = picture->Shown().samples.Channels();
    subject.frames = picture->FrameCount();
    auto *dialog = new SaveDialog(subject, m_window);
    // What was shown when the user asked: another picture may come while he chooses the name.
    const SaveRequest frame = picture->SaveOfShown(false);
    const SaveRequest allFrames = picture->SaveOfShown(true);
    connect(dialog, &SaveDialog::accepted, this, [this, dialog, frame, allFrames] {
        SaveRequest request = dialog->AllFrames() ? allFrames : frame;
        request.target = dialog->Path();
        m_services->Loader()->Save(request);
    });
    dialog->open();
    return dialog;
}

void PictureDialogs::slotAskWhereToSaveComparison(const QImage &image)
{
    m_comparison = image;
    SaveDialog::Subject subject;
    const PictureDocument *document = m_services->Desk()->MainPicture()->Document();
    subject.suggestedPath = tr("%1 compared").arg(SuggestedPath(document));
    auto *dialog = new SaveDialog(subject, m_window);
    connect(dialog, SIGNAL(accepted()), this, SLOT(slotSaveComparison()));
    dialog->open();
}

void PictureDialogs::slotSaveComparison()
{
    SaveRequest request;
    request.image = m_comparison;
    request.target = qobject_cast<SaveDialog *>(sender())->Path();
    m_services->Loader()->Save(request);
}

void PictureDialogs::slotShowInformation()
{
    const auto *picture = qobject_cast<OpenedPicture *>(sender());
    InformationDialog::ShowPicture(picture->Document()->Description(), picture->Shown().info.metadata,
                                   m_window);
}
