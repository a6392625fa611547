// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "language.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTranslator>

#include <memory>

class LanguageTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void cleanup();
    void nameFollowsChoiceThenSystem_data();
    void nameFollowsChoiceThenSystem();
    void choiceIsKept();
    void textsAreTranslated();
    void englishIsWhatTheSourcesSay();
    void oneThingHasOneName();
    void numbersHaveTheirPlural_data();
    void numbersHaveTheirPlural();

private:
    QSettings *NewSettings();

    QTemporaryDir m_dir;
    std::unique_ptr<QSettings> m_settings;
};

QSettings *LanguageTest::NewSettings()
{
    m_settings = std::make_unique<QSettings>(m_dir.filePath("language.ini"), QSettings::IniFormat);
    m_settings->clear();
    return m_settings.get();
}

void LanguageTest::cleanup()
{
    for (QTranslator *translator : qApp->findChildren<QTranslator *>(QString(), Qt::FindDirectChildrenOnly))
        delete translator;
}

void LanguageTest::nameFollowsChoiceThenSystem_data()
{
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<QString>("system");
    QTest::addColumn<QString>("name");
    QTest::newRow("nothing chosen, German system") << "" << "de" << "de";
    QTest::newRow("nothing chosen, English system") << "" << "en" << "en";
    QTest::newRow("a system that we don't speak") << "" << "fi" << "en";
    QTest::newRow("no locale at all") << "" << "C" << "en";
    QTest::newRow("the choice wins") << "en" << "de" << "en";
    QTest::newRow("a choice that we don't speak") << "fi" << "de" << "de";
}

void LanguageTest::nameFollowsChoiceThenSystem()
{
    QFETCH(QString, chosen);
    QFETCH(QString, system);
    QFETCH(QString, name);
    QSettings *settings = NewSettings();
    settings->setValue("window/language", chosen);
    QCOMPARE(Language(settings, system).Name(), name);
}

void LanguageTest::choiceIsKept()
{
    QSettings *settings = NewSettings();
    Language(settings, "en").Choose("de");
    QCOMPARE(Language(settings, "en").Name(), QString("de"));
    Language(settings, "en").Choose("no such language");
    QCOMPARE(Language(settings, "en").Name(), QString("de"));
}

void LanguageTest::textsAreTranslated()
{
    QSettings *settings = NewSettings();
    Language(settings, "de").Install();
    // One of the application, one of the module, one of Qt.
    QCOMPARE(QCoreApplication::translate("MainWindow", "&File"), QString("&Datei"));
    QCOMPARE(QCoreApplication::translate("CapturePreviewUI", "Capture"), QString("Aufnahme"));
    QDialogButtonBox box(QDialogButtonBox::Cancel);
    QCOMPARE(box.button(QDialogButtonBox::Cancel)->text().remove('&'), QString("Abbrechen"));
}

void LanguageTest::englishIsWhatTheSourcesSay()
{
    QSettings *settings = NewSettings();
    Language(settings, "en").Install();
    QCOMPARE(QCoreApplication::translate("MainWindow", "&File"), QString("&File"));
}

/// What the spectrum panel and the menu call the same, they call the same in German.
void LanguageTest::oneThingHasOneName()
{
    const QPair<const char *, const char *> names[] = {
        {"Picture", "&Picture"}, {"Sensor image", "Sensor &Image"}, {"Curve", "&Curve"},
        {"Curve with peaks", "Curve with Pea&ks"}, {"Tracks in 3D", "Tracks in &3D"},
        {"horizontal", "&Horizontal"}, {"vertical", "&Vertical"},
        {"all rows", "&All Rows"}, {"band found by itself", "Band &Found by Itself"}, {"band by hand", "Band by &Hand"},
        {"Find the Band Again", "Find the Band Aga&in"}, {"Find Tracks", "&Find Tracks"}, {"Show tracks", "&Show Tracks"},
        {"Draw on the picture", "&Draw on the Picture"}, {"Add Track", "&Add Track"}, {"Remove Track", "&Remove Track"},
        {"Clear Tracks", "&Clear Tracks"},
    };
    Language(NewSettings(), "de").Install();
    for (const auto &[panel, menu] : names) {
        const QString inPanel = QCoreApplication::translate("SpectrumFields", panel);
        const QString inMenu = QCoreApplication::translate("SpectrometerMenu", menu).remove('&');
        QVERIFY2(inPanel.compare(inMenu, Qt::CaseInsensitive) == 0, qPrintable(inPanel + ", " + inMenu));
    }
}

void LanguageTest::numbersHaveTheirPlural_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("text");
    QTest::newRow("English, one") << "en" << 1 << "1 object";
    QTest::newRow("English, none") << "en" << 0 << "0 objects";
    QTest::newRow("German, one") << "de" << 1 << "1 Objekt";
    QTest::newRow("German, many") << "de" << 7 << "7 Objekte";
}

void LanguageTest::numbersHaveTheirPlural()
{
    QFETCH(QString, name);
    QFETCH(int, number);
    QFETCH(QString, text);
    Language(NewSettings(), name).Install();
    QCOMPARE(QCoreApplication::translate("CountFields", "%n object(s)", nullptr, number), text);
}

GUARDED_TEST_MAIN(LanguageTest)
#include "languagetest.moc"
