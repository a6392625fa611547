// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QVector>

class QTabWidget;
class QWidget;

/// A page of the bottom tab widget and the left pages it is shown with.
struct BottomPage
{
    QPointer<QWidget> widget;
    QString text;
    bool belongsToCamera = true;
    bool belongsToImage = true;

    /// `leftPage` is a LeftPage; beside the file tree stands what stands beside an image.
    bool BelongsTo(int leftPage) const;
};

/// The plug-in pages of one bottom tab widget, which owns this object. Takes pages out and puts them
/// back in their order, and leaves pages of others alone.
class BottomPages : public QObject
{
public:
    /// The object of this tab widget, made on the first call.
    static BottomPages *Of(QTabWidget *tabs);
    /// All that live.
    static const QVector<BottomPages *> &All();

    explicit BottomPages(QTabWidget *tabs);
    ~BottomPages() override;

    /// A page that has a place already leaves it.
    void Add(const BottomPage &page);
    /// It is nobody's page any more; its tab stays until the widget goes.
    static void Remove(const QWidget *widget);
    void Show(int leftPage);

private:
    void PlacePages(int leftPage);
    int FirstPageIndex() const;
    QWidget *NextCurrent(QWidget *previous);

    QTabWidget *m_tabs;
    QVector<BottomPage> m_pages;
    /// Was current when it was taken out; becomes current again when it returns.
    QPointer<QWidget> m_displaced;
};
