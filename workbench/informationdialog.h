// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pictureinfo.h"

#include <QDialog>

class QVBoxLayout;

/// A small window that tells what the program is, which camera is open or what a picture file says of itself. Deletes itself when it is
/// closed.
class InformationDialog : public QDialog
{
    Q_OBJECT

public:
    static void ShowCamera(QWidget *parent);
    static void ShowAbout(QWidget *parent);
    /// `description` in lines; the metadata in a table below it.
    static void ShowPicture(const QString &description, const QVector<MetadataEntry> &metadata, QWidget *parent);

private:
    InformationDialog(const QString &title, QWidget *parent);

    void AddText(const QString &text);
    void AddCamera();
    void AddMetadata(const QVector<MetadataEntry> &metadata);
    void Finish();

    QVBoxLayout *m_column;
};
