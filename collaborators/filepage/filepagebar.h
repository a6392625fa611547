// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fileorder.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QToolButton;

/// Above the grid: which files are listed and in which order, how many there are, and what went wrong.
class FilePageBar : public QWidget
{
    Q_OBJECT

public:
    explicit FilePageBar(QWidget *parent);

    FileOrder Order() const;
    /// `shown` of `total` files, `selected` of them selected.
    void ShowCount(int shown, int total, int selected);
    /// Hidden when empty.
    void ShowNotice(const QString &text);

public slots:
    void slotFocusFilter();

signals:
    void signalOrderChanged();

private slots:
    void slotDirectionChanged();
    void slotHideNotice();

private:
    QWidget *NewNotice();

    QLineEdit *m_filter;
    QComboBox *m_key;
    QToolButton *m_direction;
    QLabel *m_count;
    QLabel *m_notice;
    QWidget *m_noticeRow;
};
