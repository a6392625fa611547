// SPDX-License-Identifier: GPL-3.0-or-later
#include "filepagebar.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QToolButton>

FilePageBar::FilePageBar(QWidget *parent)
    : QWidget(parent)
    , m_filter(new QLineEdit(this))
    , m_key(new QComboBox(this))
    , m_direction(new QToolButton(this))
    , m_count(new QLabel(this))
    , m_notice(new QLabel(this))
    , m_noticeRow(NewNotice())
{
    m_filter->setObjectName("lineEditFilter");
    m_filter->setPlaceholderText(tr("Filter names"));
    m_filter->setAccessibleName(tr("Filter names"));
    m_filter->setToolTip(tr("Part of the names, or a pattern with * and ? (Ctrl+F)"));
    m_filter->setClearButtonEnabled(true);
    m_key->setObjectName("comboBoxSort");
    m_key->setAccessibleName(tr("Sort by"));
    m_key->setToolTip(tr("What the files are sorted by"));
    m_key->addItem(tr("Name"), FileOrder::ByName);
    m_key->addItem(tr("Date"), FileOrder::ByDate);
    m_key->addItem(tr("Size"), FileOrder::BySize);
    m_key->addItem(tr("Type"), FileOrder::ByType);
    m_direction->setObjectName("toolButtonDirection");
    m_direction->setCheckable(true);
    m_count->setObjectName("labelCount");

    auto *row = new QHBoxLayout;
    row->addWidget(m_filter, 1);
    row->addWidget(m_key);
    row->addWidget(m_direction);
    row->addStretch(1);
    row->addWidget(m_count);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(row);
    column->addWidget(m_noticeRow);

    connect(m_filter, SIGNAL(textChanged(QString)), this, SIGNAL(signalOrderChanged()));
    connect(m_key, SIGNAL(currentIndexChanged(int)), this, SIGNAL(signalOrderChanged()));
    connect(m_direction, SIGNAL(toggled(bool)), this, SLOT(slotDirectionChanged()));
    slotDirectionChanged();
}

QWidget *FilePageBar::NewNotice()
{
    auto *row = new QWidget(this);
    row->setObjectName("noticeRow");
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    m_notice->setObjectName("labelNotice");
    m_notice->setTextFormat(Qt::PlainText); // it names files
    m_notice->setWordWrap(true);
    m_notice->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto *close = new QToolButton(row);
    close->setObjectName("toolButtonCloseNotice");
    close->setText(QString(QChar(0x00d7)));
    close->setAccessibleName(tr("Hide the message"));
    close->setToolTip(tr("Hide the message"));
    layout->addWidget(m_notice, 1);
    layout->addWidget(close, 0, Qt::AlignTop);
    connect(close, SIGNAL(clicked()), this, SLOT(slotHideNotice()));
    row->hide();
    return row;
}

FileOrder FilePageBar::Order() const
{
    FileOrder order;
    order.key = FileOrder::Key(m_key->currentData().toInt());
    order.descending = m_direction->isChecked();
    order.filter = m_filter->text();
    return order;
}

void FilePageBar::ShowCount(int shown, int total, int selected)
{
    const QLocale locale;
    QString text = shown == total ? tr("Pictures: %1").arg(locale.toString(total))
                                  : tr("Pictures: %1 of %2").arg(locale.toString(shown), locale.toString(total));
    if (selected > 0)
        text = tr("%1, selected: %2").arg(text, locale.toString(selected));
    m_count->setText(text);
}

void FilePageBar::ShowNotice(const QString &text)
{
    m_notice->setText(text);
    m_noticeRow->setVisible(!text.isEmpty());
}

void FilePageBar::slotFocusFilter()
{
    m_filter->setFocus(Qt::ShortcutFocusReason);
    m_filter->selectAll();
}

void FilePageBar::slotDirectionChanged()
{
    const bool descending = m_direction->isChecked();
    m_direction->setArrowType(descending ? Qt::UpArrow : Qt::DownArrow);
    const QString text = descending ? tr("Sorted downwards. Click to sort upwards.")
                                    : tr("Sorted upwards. Click to sort downwards.");
    m_direction->setToolTip(text);
    m_direction->setAccessibleName(text);
    emit signalOrderChanged();
}

void FilePageBar::slotHideNotice()
{
    ShowNotice(QString());
}
