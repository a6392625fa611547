// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fakeservices.h"
#include "levelsmodel.h"
#include "madepictures.h"
#include "openedpicture.h"
#include "picturedesk.h"
#include "picturedocument.h"
#include "pictureloader.h"
#include "pictureshelf.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

/// Everything that opened pictures are made of, with its real thread, over services that only record.
struct PictureBench
{
    PictureBench()
        : loader(&levels)
        , shelf(&loader)
        , main(&loader, OpenedPicture::MainPlace)
        , compare(&loader, OpenedPicture::ComparePlace)
        , desk(&loader, &shelf, &main, &compare)
        , shown(&main, SIGNAL(signalShowPicture(QImage)))
        , faults(&desk, SIGNAL(signalFault(QString)))
        , messages(&desk, SIGNAL(signalMessage(QString)))
    {
    }

    QString Path(const QString &name) const { return folder.filePath(name); }
    /// Opens a file of numbered frames and waits until it is shown.
    bool Open(const QString &name, const QSize &size, int frames = 1)
    {
        MadePictures::Write(Path(name), size, frames);
        desk.Open({ Path(name) }, &main);
        return WaitForShown(name);
    }
    bool WaitForShown(const QString &name) const
    {
        return QTest::qWaitFor(
            [&] { return main.GetFileName() == name && main.WantedDocument() == main.Document(); });
    }
    QString FirstFault() const { return faults.value(0).value(0).toString(); }
    QString LastMessage() const
    {
        return messages.isEmpty() ? QString() : messages.last().first().toString();
    }

    QTemporaryDir folder;
    FakeServices services;
    LevelsModel levels;
    PictureLoader loader;
    PictureShelf shelf;
    OpenedPicture main;
    OpenedPicture compare;
    PictureDesk desk;
    QSignalSpy shown;
    QSignalSpy faults;
    QSignalSpy messages;
};
