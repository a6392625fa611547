// SPDX-License-Identifier: GPL-3.0-or-later
// The program in German.
#include "language.h"
#include "mnemonics.h"
#include "scenariotest.h"

#include <QMenuBar>
#include <QSettings>
#include <QTranslator>

class German : public ScenarioTest
{
    Q_OBJECT

private slots:
    void cleanup() override
    {
        ScenarioTest::cleanup();
        for (QTranslator *translator : qApp->findChildren<QTranslator *>(QString(), Qt::FindDirectChildrenOnly))
            delete translator;
    }

    void mnemonicsAreNotTakenTwice()
    {
        const QList<QAction *> menus = m_workbench->window.menuBar()->actions();
        QCOMPARE(menus.first()->text(), QString("&Datei"));
        const QStringList taken = MnemonicsTakenTwice(menus, "menu bar");
        QVERIFY2(taken.isEmpty(), qPrintable(taken.join("; ")));
    }

protected:
    void Prepare() override
    {
        QSettings settings(m_folder->filePath("language.ini"), QSettings::IniFormat);
        Language(&settings, "de").Install();
    }
};

GUARDED_TEST_MAIN(German)
#include "tst_german.moc"
