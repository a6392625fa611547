// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"

#include "displayscale.h"
#include "globalclass.h"
#include "programfile.h"

#include <QFile>
#include <QFontMetrics>
#include <QFormLayout>
#include <QLabel>
#include <QScreen>
#include <QTemporaryDir>

#include <memory>

class TestGlobalClass : public GuardedTest
{
    Q_OBJECT

private slots:
    void DesignSizesFollowTheScreen()
    {
        const qreal scale = qMax(1.0, QGuiApplication::primaryScreen()->logicalDotsPerInch() / 96.0);
        QCOMPARE(GlobalClass::GetActualSize(100), qRound(100 * scale));
        QCOMPARE(GlobalClass::GetActualSize(0), 0);
    }

    void DesignSizesFollowTheChosenScale_data()
    {
        QTest::addColumn<double>("scale");
        QTest::addColumn<int>("designSize");
        QTest::addColumn<int>("actualSize");
        QTest::newRow("96 dots per inch") << 1.0 << 124 << 124;
        QTest::newRow("half as large again") << 1.5 << 93 << 140; // 139.5 is rounded up
        QTest::newRow("twice") << 2.0 << 25 << 50;
        QTest::newRow("a quarter more") << 1.25 << 5 << 6; // 6.25
        QTest::newRow("smaller") << 0.5 << 30 << 15;
    }

    void DesignSizesFollowTheChosenScale()
    {
        QFETCH(double, scale);
        QFETCH(int, designSize);
        QFETCH(int, actualSize);
        const DisplayScale chosen(scale);
        QCOMPARE(GlobalClass::GetActualSize(designSize), actualSize);
    }

    void AScaleThatIsNoneIsIgnored()
    {
        const int size = GlobalClass::GetActualSize(100);
        for (const QVariant &scale : {QVariant(0.0), QVariant(-2.0), QVariant("wide")}) {
            qApp->setProperty("globalui.scale", scale);
            QCOMPARE(GlobalClass::GetActualSize(100), size);
        }
        qApp->setProperty("globalui.scale", QVariant());
    }

    void TextWidthsHaveRoomAroundTheText()
    {
        const DisplayScale chosen(1.0);
        const QString text = "3200.00%";
        const int bare = QFontMetrics(QApplication::font()).horizontalAdvance(text);
        QVERIFY(GlobalClass::GetStringWidth(text) > bare);
        QVERIFY(GlobalClass::GetStringWidth2(text) > GlobalClass::GetStringWidth(text));
        QVERIFY(GlobalClass::GetStringWidth(text + text) >= GlobalClass::GetStringWidth(text) + bare - 1);
    }

    void SymbolsHaveTheirLatin1Codes()
    {
        QCOMPARE(GlobalClass::GetSpecialSymbol(176), QString::fromUtf8("\xC2\xB0"));
        QCOMPARE(GlobalClass::GetSpecialSymbol(181), QString::fromUtf8("\xC2\xB5"));
        QCOMPARE(GlobalClass::GetSpecialSymbol('A'), QString("A"));
    }

    void CtrlIsNotPressedWithoutAKeyboardEvent() { QVERIFY(!GlobalClass::IsCtrlKeyPressed()); }

    void PropertiesStandInTwoColumns()
    {
        const std::unique_ptr<QWidget> properties(
            GlobalClass::GetPropertyUI({"Name", "Camera <b>1</b>", "VID", "0x0547", "Last"}));
        auto *form = qobject_cast<QFormLayout *>(properties->layout());
        QVERIFY(form);
        const QStringList expected[] = {{"Name", "Camera <b>1</b>"}, {"VID", "0x0547"}, {"Last", ""}};
        QCOMPARE(form->rowCount(), 3);
        for (int row = 0; row < form->rowCount(); ++row) {
            auto *label = qobject_cast<QLabel *>(form->itemAt(row, QFormLayout::LabelRole)->widget());
            auto *value = qobject_cast<QLabel *>(form->itemAt(row, QFormLayout::FieldRole)->widget());
            QCOMPARE(label->text(), expected[row].at(0));
            QCOMPARE(value->text(), expected[row].at(1));
            QCOMPARE(value->textFormat(), Qt::PlainText);
            QVERIFY(value->textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
        }
    }

    void NoPropertiesGiveAnEmptyWidget()
    {
        const std::unique_ptr<QWidget> properties(GlobalClass::GetPropertyUI({}));
        QVERIFY(properties->findChildren<QLabel *>().isEmpty());
    }

    void AProgramFileTellsItsVersions()
    {
        QTemporaryDir folder;
        QFile file(folder.filePath("Kelvo.dll"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(ProgramFile(".rsrc", VersionInformation(StringRecord("FileVersion", "1.0")
                                                           + StringRecord("ProductVersion", "57.25.10.3"))));
        file.close();
        const QString path = folder.path() + "\\Kelvo.dll";
        QCOMPARE(GlobalClass::GetSoftWareVersion(path, "ProductVersion"), QString("57.25.10.3"));
        QCOMPARE(GlobalClass::GetSoftWareVersion(path, "FileVersion"), QString("1.0"));
        QCOMPARE(GlobalClass::GetSoftWareVersion(path, "Comments"), QString());
    }

    void AFileWithoutVersionResourceHasNoVersion()
    {
        QTemporaryDir folder;
        QFile file(folder.filePath("Kelvo.dll"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("no program");
        file.close();
        QCOMPARE(GlobalClass::GetSoftWareVersion(folder.path() + "\\Kelvo.dll", "ProductVersion"), QString());
        QCOMPARE(GlobalClass::GetSoftWareVersion(folder.path() + "\\nowhere.dll", "ProductVersion"),
                 QString());
    }
};

GUARDED_TEST_MAIN(TestGlobalClass)
#include "tst_globalclass.moc"
