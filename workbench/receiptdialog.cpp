// SPDX-License-Identifier: GPL-3.0-or-later
#include "receiptdialog.h"

#include "runchecksum.h"
#include "runsummary.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QThreadPool>
#include <QVBoxLayout>

namespace {

QLabel *TextLabel(const QString &text, const char *name)
{
    auto *label = new QLabel(text);
    label->setObjectName(name);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

} // namespace

ReceiptDialog::ReceiptDialog(const RunReceipt &receipt, QWidget *parent)
    : ReceiptDialog(receipt, RunChecksum::OfFiles, parent)
{
}

ReceiptDialog::ReceiptDialog(const RunReceipt &receipt, const Reader &reader, QWidget *parent)
    : QDialog(parent)
    , m_receipt(receipt)
    , m_reader(reader)
    , m_isClosing(std::make_shared<std::atomic<bool>>(false))
    , m_verdict(TextLabel(QString(), "labelVerdict"))
    , m_verify(new QPushButton(tr("&Verify"), this))
{
    setObjectName("ReceiptDialog");
    setWindowTitle(tr("Recording"));
    setAttribute(Qt::WA_DeleteOnClose);

    auto *column = new QVBoxLayout(this);
    auto *form = new QFormLayout;
    column->addLayout(form);
    if (!receipt.files.isEmpty())
        form->addRow(tr("File"), TextLabel(receipt.files.first(), "labelFile"));
    for (const auto &line : OutcomeLines(receipt.facts, receipt.outcome, receipt.stamps))
        form->addRow(line.first, TextLabel(line.second, "labelValue"));
    if (!receipt.error.isEmpty())
        form->addRow(tr("Error"), TextLabel(receipt.error, "labelError"));
    if (!receipt.warning.isEmpty())
        form->addRow(tr("Warning"), TextLabel(receipt.warning, "labelWarning"));
    column->addWidget(m_verdict);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, SIGNAL(rejected()), this, SLOT(close()));
    m_verify->setObjectName("pushButtonVerify");
    m_verify->setToolTip(tr("Read the files back and compare them with what was captured"));
    buttons->addButton(m_verify, QDialogButtonBox::ActionRole);
    auto *open = buttons->addButton(tr("&Open"), QDialogButtonBox::ActionRole);
    open->setObjectName("pushButtonOpen");
    connect(m_verify, SIGNAL(clicked()), this, SLOT(slotVerify()));
    connect(open, &QPushButton::clicked, this, [this] { emit signalOpenFile(m_receipt.files.value(0)); });
    m_verify->setEnabled(!receipt.files.isEmpty());
    open->setEnabled(!receipt.files.isEmpty());
    column->addWidget(buttons);
    setMinimumWidth(fontMetrics().averageCharWidth() * 70);
}

ReceiptDialog::~ReceiptDialog() { *m_isClosing = true; }

void ReceiptDialog::slotVerify()
{
    m_verify->setEnabled(false);
    m_verdict->setText(tr("Reading the files…"));
    // The verdict goes by the application, which outlives the workers, to a dialog that may be gone.
    QThreadPool::globalInstance()->start([reader = m_reader, files = m_receipt.files, isClosing = m_isClosing,
                                          dialog = QPointer<ReceiptDialog>(this), application = qApp] {
        quint64 checksum = 0;
        QString error;
        reader(files, &checksum, &error, [isClosing] { return bool(*isClosing); });
        if (*isClosing)
            return;
        QMetaObject::invokeMethod(
            application,
            [dialog, checksum, error] {
                if (dialog)
                    dialog->Show(checksum, error);
            },
            Qt::QueuedConnection);
    });
}

void ReceiptDialog::Show(quint64 checksum, const QString &error)
{
    m_verify->setEnabled(true);
    if (!error.isEmpty())
        m_verdict->setText(error);
    else if (checksum == RunChecksum::OfRun(m_receipt.stamps))
        m_verdict->setText(tr("The files hold exactly what was captured."));
    else
        m_verdict->setText(
            tr("The files do NOT hold what was captured: checksum %1.").arg(RunChecksum::ToText(checksum)));
}
