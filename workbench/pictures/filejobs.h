// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "picture.h"

#include <QObject>
#include <QStringList>
#include <QThreadPool>

#include <atomic>
#include <functional>

/// Work on whole picture files, one job after the other in a thread of its own: convert to CSV, change the
/// resolution, merge. GUI thread.
class FileJobs : public QObject
{
    Q_OBJECT

public:
    explicit FileJobs(QObject *parent = nullptr);
    /// Ends what is under way; files that are not whole don't come into being.
    ~FileJobs() override;

    /// All frames of each file go to a file beside it that ends in ".csv"; none is overwritten.
    void ConvertToCsv(const QStringList &paths);
    /// One frame as it is seen, `samples` of `path`. `title` says which frame.
    void ConvertToCsv(const Picture &samples, const QString &path, const QString &title);
    void SetResolution(const QStringList &paths, double dpi);
    /// All frames of pictures of equal size and kind of samples become one file, in this order.
    void Merge(const QStringList &paths, const QString &target);

signals:
    void signalMessage(QString text);
    /// What was not done and why.
    void signalFault(QString text);
    void signalMerged(QString path);
    /// The file is another one now.
    void signalChanged(QString path);

private:
    void Start(const std::function<void()> &job);
    /// To the GUI thread.
    void Tell(const std::function<void()> &say);
    QString WriteCsv(const QString &path, QString &error);
    bool WriteMerged(const QStringList &paths, const QString &target, QString &error);

    std::atomic<bool> m_ends{false};
    QThreadPool m_worker;
};
