// SPDX-License-Identifier: GPL-3.0-or-later
#include "savedialog.h"

#include "pictureformat.h"
#include "savetask.h"

#include <QCheckBox>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

namespace {

constexpr PictureFormat formats[] = { PictureFormat::Tiff, PictureFormat::Png, PictureFormat::Jpeg,
                                      PictureFormat::Fits };

QString FilterOf(PictureFormat format)
{
    return QString("%1 (*.%2)").arg(FormatName(format), FormatSuffixes(format).join(" *."));
}

QStringList Filters()
{
    QStringList filters;
    for (const PictureFormat format : formats)
        filters << FilterOf(format);
    return filters;
}

PictureFormat FormatOfFilter(const QString &filter)
{
    for (const PictureFormat format : formats) {
        if (filter == FilterOf(format))
            return format;
    }
    return PictureFormat::Unknown;
}

bool HoldsStacks(PictureFormat format)
{
    return format == PictureFormat::Tiff || format == PictureFormat::Fits;
}

} // namespace

SaveDialog::SaveDialog(const Subject &subject, QWidget *parent)
    : ExportDialog(tr("Save Image As"), Filters(), subject.suggestedPath, parent)
    , m_subject(subject)
    , m_loss(new QLabel(this))
    , m_allFrames(new QCheckBox(tr("All %1 frames").arg(subject.frames), this))
{
    setObjectName("SaveDialog");
    m_name = findChild<QLineEdit *>("fileNameEdit");
    m_loss->setObjectName("labelLoss");
    m_loss->setWordWrap(true);
    m_allFrames->setObjectName("checkBoxAllFrames");
    m_allFrames->setVisible(subject.frames > 1);
    m_allFrames->setChecked(subject.wantsAllFrames);
    auto *grid = qobject_cast<QGridLayout *>(layout());
    grid->addWidget(m_allFrames, grid->rowCount(), 1);
    grid->addWidget(m_loss, grid->rowCount(), 1, 1, -1);

    connect(this, SIGNAL(filterSelected(QString)), this, SLOT(slotFilterSelected(QString)));
    connect(findChild<QLineEdit *>("fileNameEdit"), SIGNAL(textChanged(QString)), this,
            SLOT(slotUpdateNotes()));
    slotUpdateNotes();
}

/// The name follows the format that was chosen.
void SaveDialog::slotFilterSelected(const QString &filter)
{
    m_name->setText(QFileInfo(Path()).completeBaseName() + '.' + FormatSuffixes(FormatOfFilter(filter)).first());
}

void SaveDialog::slotUpdateNotes()
{
    const PictureFormat format = FormatOfName(Path());
    m_loss->setText(SavingLossText(format, m_subject.type, m_subject.channels));
    m_allFrames->setEnabled(HoldsStacks(format));
}

bool SaveDialog::AllFrames() const
{
    return m_allFrames->isVisibleTo(this) && m_allFrames->isEnabled() && m_allFrames->isChecked();
}
