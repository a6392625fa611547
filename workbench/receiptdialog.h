// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framesaving.h"

#include <QDialog>

#include <atomic>
#include <functional>
#include <memory>

class QLabel;
class QPushButton;

/// What a run has come to, and whether its files still hold what was captured. GUI thread; files are read in a worker
/// that nobody waits for: a disk may take its time, or never answer.
class ReceiptDialog : public QDialog
{
    Q_OBJECT

public:
    /// As RunChecksum::OfFiles(); runs in the worker.
    using Reader = std::function<bool(const QStringList &files, quint64 *checksum, QString *error,
                                      const std::function<bool()> &isCancelled)>;

    ReceiptDialog(const RunReceipt &receipt, QWidget *parent);
    ReceiptDialog(const RunReceipt &receipt, const Reader &reader, QWidget *parent);
    ~ReceiptDialog() override;

signals:
    void signalOpenFile(QString path);

private slots:
    void slotVerify();

private:
    void Show(quint64 checksum, const QString &error);

    const RunReceipt m_receipt;
    const Reader m_reader;
    const std::shared_ptr<std::atomic<bool>> m_isClosing; ///< shared with the worker, which stops reading then
    QLabel *m_verdict;
    QPushButton *m_verify;
};
