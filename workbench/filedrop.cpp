// SPDX-License-Identifier: GPL-3.0-or-later
#include "filedrop.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>
#include <QWindow>

FileDrop::FileDrop(QWidget *window)
    : QObject(window)
{
    window->winId(); // makes the window's handle
    window->windowHandle()->installEventFilter(this);
}

bool FileDrop::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return TakeDrop(static_cast<QDropEvent *>(event));
    default:
        return QObject::eventFilter(watched, event);
    }
}

QStringList FileDrop::LocalFiles(const QDropEvent *event)
{
    QStringList paths;
    const QList<QUrl> urls = event->mimeData()->urls();
    for (const QUrl &url : urls) {
        if (url.isLocalFile())
            paths << url.toLocalFile();
    }
    return paths;
}

/// Something else than files is left to the widgets.
bool FileDrop::TakeDrop(QDropEvent *event)
{
    const QStringList paths = LocalFiles(event);
    if (paths.isEmpty())
        return false;
    event->setDropAction(Qt::CopyAction);
    event->accept();
    // Later: the other program waits for the drop to end.
    if (event->type() == QEvent::Drop)
        QMetaObject::invokeMethod(this, "signalFilesDropped", Qt::QueuedConnection,
                                  Q_ARG(QStringList, paths));
    return true;
}
