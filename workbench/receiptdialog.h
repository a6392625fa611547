// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "framesaving.h"

#include <QDialog>
#include <QThreadPool>

#include <atomic>

class QLabel;
class QPushButton;

/// What a run has come to, and whether its files still hold what was captured. GUI thread; files are read in a worker.
class ReceiptDialog : public QDialog
{
    Q_OBJECT

public:
    ReceiptDialog(const RunReceipt &receipt, QWidget *parent);
    ~ReceiptDialog() override;

signals:
    void signalOpenFile(QString path);

private slots:
    void slotVerify();

private:
    void Show(quint64 checksum, const QString &error);

    const RunReceipt m_receipt;
    std::atomic<bool> m_isClosing{ false }; ///< the worker stops reading
    QThreadPool m_worker;
    QLabel *m_verdict;
    QPushButton *m_verify;
};
