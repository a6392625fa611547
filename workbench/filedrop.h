// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QStringList>

class QDropEvent;
class QWidget;

/// Takes files that are dropped anywhere on a window. It watches the window itself, because the views in it
/// would take a drag and then do nothing with it. GUI thread.
class FileDrop : public QObject
{
    Q_OBJECT

public:
    /// `window` is a window that exists already; it owns this object.
    explicit FileDrop(QWidget *window);

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void signalFilesDropped(QStringList paths);

private:
    static QStringList LocalFiles(const QDropEvent *event);
    bool TakeDrop(QDropEvent *event);
};
