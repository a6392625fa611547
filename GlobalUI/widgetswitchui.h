// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>

class QHBoxLayout;
class QPushButton;

/// The "File Preview" page at the bottom: a column of buttons beside the thumbnail list. The file
/// browser is opened by one button and left by another that takes its place.
class WidgetSwitchUI : public QFrame
{
    Q_OBJECT

public:
    /// Takes the thumbnail list.
    explicit WidgetSwitchUI(QWidget *parent);

private slots:
    void on_pushButtonShowFileDirTreeView_clicked();
    void on_pushButtonReturn_clicked();
    void slotUpdateUI();
    void on_pushButtonModifyDPI_clicked();
    void on_pushButtonConvertCSV_clicked();

private:
    /// Gives the row in which the thumbnail list stands.
    QHBoxLayout *SetupForm();
    /// It shows an icon only: `name` is for those who do not see it. `iconRatio` is the icon's side as a part of the
    /// button's.
    QPushButton *MakeButton(const QString &objectName, const QString &name, double iconRatio);

    QPushButton *m_showFileDirButton;
    QPushButton *m_returnButton;
};
