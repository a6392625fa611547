// SPDX-License-Identifier: GPL-3.0-or-later
#include "componentwithbordersitem.h"

#include "guardedtest.h"

#include <QImage>
#include <QPainter>

namespace {

/// Notes which hooks are called, and fills a corner over the border.
class NotingItem : public ComponentWithBordersItem
{
public:
    NotingItem()
        : ComponentWithBordersItem(nullptr)
    {
    }
    using ComponentItem::itemSize;
    QStringList hooks;

protected:
    void OnItemSizeChanged(QSize) override { hooks << "size"; }
    void DrawBorders(QPainter *painter) override
    {
        hooks << "borders";
        ComponentWithBordersItem::DrawBorders(painter);
    }
    void DrawContent(QPainter *painter) override
    {
        hooks << "content";
        painter->fillRect(QRect(0, 0, 5, 5), Qt::red);
    }
    void DrawForeground(QPainter *) override { hooks << "foreground"; }
};

} // namespace

class TestComponentItem : public GuardedTest
{
    Q_OBJECT

private slots:
    void sizeIsCutToWholePixels();
    void sizeBeyondIntIsHeld();
    void contentLiesOverTheBorder();
    void itemSizeRulesThePainting();
};

void TestComponentItem::sizeIsCutToWholePixels()
{
    NotingItem item;
    QCOMPARE(item.itemSize, QSize(400, 400));
    const QSize before = item.size();
    item.SetItemSize(399.9, 50.7);
    QCOMPARE(item.itemSize, QSize(399, 50));
    QCOMPARE(item.size(), before);
    item.SetItemSize(qQNaN(), 3);
    item.SetItemSize(3, qInf());
    QCOMPARE(item.itemSize, QSize(399, 50));
    QCOMPARE(item.hooks, QStringList({"size"}));
}

void TestComponentItem::sizeBeyondIntIsHeld()
{
    NotingItem item;
    item.SetItemSize(1e300, -1e300);
    QCOMPARE(item.itemSize, QSize(QWIDGETSIZE_MAX, -QWIDGETSIZE_MAX));
    item.SetItemSize(3e9, 20);
    QCOMPARE(item.itemSize, QSize(QWIDGETSIZE_MAX, 20));
    item.resize(50, 50);
    QVERIFY(!item.grab().isNull());
    item.SetItemSize(-7.9, 20.1);
    QCOMPARE(item.itemSize, QSize(-7, 20));
}

void TestComponentItem::contentLiesOverTheBorder()
{
    NotingItem item;
    item.resize(400, 50);
    item.SetItemSize(400, 50);
    item.hooks.clear();
    const QImage image = item.grab().toImage();
    QCOMPARE(item.hooks, QStringList({"borders", "content", "foreground"}));
    QCOMPARE(image.pixelColor(2, 0), QColor(Qt::red));
    QCOMPARE(image.pixelColor(100, 0), QColor(Qt::white));
    QCOMPARE(image.pixelColor(399, 20), QColor(Qt::white));
    QCOMPARE(image.pixelColor(100, 49), QColor(Qt::white));
    QVERIFY(image.pixelColor(398, 48) != QColor(Qt::white));
}

void TestComponentItem::itemSizeRulesThePainting()
{
    NotingItem item;
    item.resize(100, 100);
    item.SetItemSize(60, 400);
    const QImage image = item.grab().toImage();
    QCOMPARE(image.pixelColor(59, 99), QColor(Qt::white));
    QVERIFY(image.pixelColor(30, 99) != QColor(Qt::white)); // the lower border is cut off
    QVERIFY(image.pixelColor(99, 50) != QColor(Qt::white));
}

GUARDED_TEST_MAIN(TestComponentItem)
#include "tst_componentitem.moc"
