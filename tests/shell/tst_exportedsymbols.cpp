// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"

#include <QProcess>
#include <QRegularExpression>

/// What the built library shows to the linker.
class ExportedSymbolsTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void oneClassLeavesTheLibrary();
};

void ExportedSymbolsTest::oneClassLeavesTheLibrary()
{
    QProcess nm;
    nm.start(NM_PROGRAM, { "-D", "--defined-only", "-C", GLOBALUI_LIBRARY_FILE });
    QVERIFY2(nm.waitForFinished(), qPrintable(nm.errorString()));
    QCOMPARE(nm.exitCode(), 0);

    const QRegularExpression line("^[0-9a-f]+ [A-Za-z] (.*)$");
    const QRegularExpression ofGlobalUI(
        "^((vtable|typeinfo|typeinfo name|VTT) for GlobalUI|(non-virtual thunk to |guard variable for )?GlobalUI::.*)$");
    QStringList symbols;
    for (const QString &text :
         QString::fromUtf8(nm.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts)) {
        const QRegularExpressionMatch match = line.match(text);
        QVERIFY2(match.hasMatch(), qPrintable(text));
        symbols << match.captured(1);
        QVERIFY2(ofGlobalUI.match(symbols.last()).hasMatch(), qPrintable(symbols.last()));
    }
    for (const char *needed :
         { "GlobalUI::GetInstance()", "GlobalUI::InitMainUI(QWidget*)", "GlobalUI::GetCenterStackedWidget()",
           "GlobalUI::GetCenterStackedWidget(QWidget*)", "GlobalUI::UpdateObserver(int, void*)",
           "GlobalUI::staticMetaObject", "vtable for GlobalUI", "typeinfo for GlobalUI" })
        QVERIFY2(symbols.contains(needed), needed);
}

GUARDED_TEST_MAIN(ExportedSymbolsTest)
#include "tst_exportedsymbols.moc"
