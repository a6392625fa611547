// SPDX-License-Identifier: GPL-3.0-or-later
#include "zoomui.h"

#include "guardedtest.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QSignalSpy>

class TestZoomUI : public GuardedTest
{
    Q_OBJECT

private slots:
    void form();
    void buttons_data();
    void buttons();
};

void TestZoomUI::form()
{
    ZoomUI ui(nullptr);
    QCOMPARE(ui.windowTitle(), QString("Form"));
    QCOMPARE(ui.size(), QSize(462, 65));
    auto *row = qobject_cast<QHBoxLayout *>(ui.layout());
    QVERIFY(row);
    QWidget widget;
    const QMargins usual = QHBoxLayout(&widget).contentsMargins();
    QCOMPARE(row->contentsMargins(), QMargins(usual.left(), 0, usual.right(), 0));
    QStringList names;
    for (int i = 0; i < row->count(); ++i)
        names << row->itemAt(i)->widget()->objectName();
    QCOMPARE(names, QStringList({"pushButtonZoomIn", "pushButtonZoomOut", "pushButton1vs1", "pushButtonFit"}));
}

void TestZoomUI::buttons_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("signal");
    QTest::newRow("in") << "pushButtonZoomIn" << "Zoom In" << QByteArray(SIGNAL(signalZoomIn()));
    QTest::newRow("out") << "pushButtonZoomOut" << "Zoom Out" << QByteArray(SIGNAL(signalZoomOut()));
    QTest::newRow("one to one") << "pushButton1vs1" << "1 : 1" << QByteArray(SIGNAL(signalZoom1v1()));
    QTest::newRow("fit") << "pushButtonFit" << "Fit" << QByteArray(SIGNAL(signalZoomFit()));
}

void TestZoomUI::buttons()
{
    QFETCH(QString, button);
    QFETCH(QString, text);
    QFETCH(QByteArray, signal);
    ZoomUI ui(nullptr);
    QSignalSpy wanted(&ui, signal);
    int others = 0;
    for (const char *any : {SIGNAL(signalZoomIn()), SIGNAL(signalZoomOut()), SIGNAL(signalZoom1v1()), SIGNAL(signalZoomFit())}) {
        QSignalSpy spy(&ui, any);
        auto *pushButton = ui.findChild<QPushButton *>(button);
        QCOMPARE(pushButton->text(), text);
        QTest::mouseClick(pushButton, Qt::LeftButton);
        others += any == signal ? 0 : spy.count();
    }
    QCOMPARE(wanted.count(), 4); // once a click
    QCOMPARE(others, 0);
}

GUARDED_TEST_MAIN(TestZoomUI)
#include "tst_zoomui.moc"
