// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

class QVBoxLayout;

/// A small window that tells what the program is and which camera is open. Deletes itself when it is
/// closed.
class InformationDialog : public QDialog
{
    Q_OBJECT

public:
    static void ShowCamera(QWidget *parent);
    static void ShowAbout(QWidget *parent);

private:
    InformationDialog(const QString &title, QWidget *parent);

    void AddText(const QString &text);
    void AddCamera();
    void Finish();

    QVBoxLayout *m_column;
};
