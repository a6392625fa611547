// SPDX-License-Identifier: GPL-3.0-or-later
#include "bottompages.h"

#include "viewcodes.h"

#include <QSignalBlocker>
#include <QTabWidget>

#include <algorithm>

namespace {

QVector<BottomPages *> &Living()
{
    static QVector<BottomPages *> all;
    return all;
}

} // namespace

bool BottomPage::BelongsTo(int leftPage) const
{
    return leftPage == CameraControlPage ? belongsToCamera : belongsToImage;
}

BottomPages *BottomPages::Of(QTabWidget *tabs)
{
    for (BottomPages *pages : Living()) {
        if (pages->m_tabs == tabs)
            return pages;
    }
    return new BottomPages(tabs);
}

const QVector<BottomPages *> &BottomPages::All()
{
    return Living();
}

BottomPages::BottomPages(QTabWidget *tabs)
    : QObject(tabs)
    , m_tabs(tabs)
{
    Living().append(this);
}

BottomPages::~BottomPages()
{
    Living().removeAll(this);
}

void BottomPages::Add(const BottomPage &page)
{
    Remove(page.widget);
    m_pages.append(page);
}

void BottomPages::Remove(const QWidget *widget)
{
    for (BottomPages *pages : Living()) {
        QVector<BottomPage> &others = pages->m_pages;
        others.erase(std::remove_if(others.begin(), others.end(),
                                    [=](const BottomPage &other) { return other.widget == widget; }),
                     others.end());
    }
}

void BottomPages::Show(int leftPage)
{
    m_pages.erase(
        std::remove_if(m_pages.begin(), m_pages.end(), [](const BottomPage &page) { return !page.widget; }),
        m_pages.end());
    const int previousIndex = m_tabs->currentIndex();
    QWidget *previous = m_tabs->currentWidget();
    {
        // Listeners store the current index: they hear of the result, not of the steps to it.
        const QSignalBlocker quiet(m_tabs);
        PlacePages(leftPage);
        m_tabs->setCurrentWidget(NextCurrent(previous));
    }
    if (m_tabs->currentIndex() != previousIndex || m_tabs->currentWidget() != previous)
        emit m_tabs->currentChanged(m_tabs->currentIndex());
}

void BottomPages::PlacePages(int leftPage)
{
    for (const BottomPage &page : qAsConst(m_pages)) {
        if (!page.BelongsTo(leftPage) && m_tabs->indexOf(page.widget) >= 0)
            m_tabs->removeTab(m_tabs->indexOf(page.widget));
    }
    int next = FirstPageIndex();
    for (const BottomPage &page : qAsConst(m_pages)) {
        if (!page.BelongsTo(leftPage))
            continue;
        if (m_tabs->indexOf(page.widget) < 0)
            m_tabs->insertTab(next, page.widget, page.text);
        next = m_tabs->indexOf(page.widget) + 1;
    }
}

/// Where the pages begin: at the first one that is shown, otherwise behind the pages of others.
int BottomPages::FirstPageIndex() const
{
    int first = m_tabs->count();
    for (const BottomPage &page : m_pages) {
        const int index = m_tabs->indexOf(page.widget);
        if (index >= 0)
            first = qMin(first, index);
    }
    return first;
}

QWidget *BottomPages::NextCurrent(QWidget *previous)
{
    QWidget *standIn = m_tabs->widget(0);
    if (m_tabs->indexOf(previous) < 0) {
        m_displaced = previous;
        return standIn;
    }
    if (m_displaced && previous != standIn)
        m_displaced = nullptr; // another page was chosen meanwhile
    if (!m_displaced || m_tabs->indexOf(m_displaced) < 0)
        return previous;
    QWidget *returned = m_displaced;
    m_displaced = nullptr;
    return returned;
}
