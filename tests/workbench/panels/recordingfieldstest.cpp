// SPDX-License-Identifier: GPL-3.0-or-later
#include "guardedtest.h"
#include "recordingfields.h"
#include "savesettings.h"

#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <memory>

namespace {

bool IsSame(const QVariant &value, const QVariant &expected)
{
    return expected.type() == QVariant::String ? value.toString() == expected.toString()
                                               : value.toDouble() == expected.toDouble();
}

} // namespace

class RecordingFieldsTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void init() override;
    void cleanup() override;
    void settingsAreKept_data();
    void settingsAreKept();
    void modeDecidesWhatCanBeSet();
    void nextNameIsShown();
    void nameThatCantBeIsSaidAndNotKept();
    void nothingCanBeSetDuringARun();

private:
    PanelField Field(const QString &key) const;

    QTemporaryDir m_dir;
    std::unique_ptr<QSettings> m_file;
    std::unique_ptr<SaveSettings> m_settings;
    std::unique_ptr<RecordingFields> m_fields;
};

void RecordingFieldsTest::init()
{
    StartGuard();
    m_file = std::make_unique<QSettings>(m_dir.filePath("recording.ini"), QSettings::IniFormat);
    m_file->clear();
    m_settings = std::make_unique<SaveSettings>(m_file.get());
    m_fields = std::make_unique<RecordingFields>(m_settings.get(), [] {
        return NamePattern::Values{"Cam 7", QDateTime(QDate(2026, 5, 17), QTime(13, 45, 6)), 2500, 3};
    });
}

void RecordingFieldsTest::cleanup()
{
    m_fields.reset();
    m_settings.reset();
    m_file.reset();
    EndGuard();
}

PanelField RecordingFieldsTest::Field(const QString &key) const
{
    for (const PanelField &field : m_fields->Fields()) {
        if (field.key == key)
            return field;
    }
    return PanelField();
}

void RecordingFieldsTest::settingsAreKept_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("set");
    QTest::addColumn<QVariant>("kept");
    QTest::newRow("mode") << "mode" << QVariant(2) << QVariant(2);
    QTest::newRow("a mode that is none") << "mode" << QVariant(99) << QVariant(3);
    QTest::newRow("frames") << "frames" << QVariant(77) << QVariant(77);
    QTest::newRow("no frames") << "frames" << QVariant(0) << QVariant(1);
    QTest::newRow("too many frames") << "frames" << QVariant(20000000) << QVariant(4000000);
    QTest::newRow("seconds") << "seconds" << QVariant(12) << QVariant(12);
    QTest::newRow("delay") << "delay" << QVariant(75.25) << QVariant(75.25);
    QTest::newRow("a day's delay") << "delay" << QVariant(86400.0) << QVariant(86400.0);
    QTest::newRow("interval") << "interval" << QVariant(1.5) << QVariant(1.5);
    QTest::newRow("to memory") << "target" << QVariant(1) << QVariant(1);
    QTest::newRow("format") << "format" << QVariant(2) << QVariant(2);
    QTest::newRow("a format that is none") << "format" << QVariant(-4) << QVariant(0);
    QTest::newRow("folder") << "folder" << QVariant("/data/run 1") << QVariant("/data/run 1");
    QTest::newRow("queue") << "queue" << QVariant(64) << QVariant(64);
    QTest::newRow("too small a queue") << "queue" << QVariant(1) << QVariant(16);
}

void RecordingFieldsTest::settingsAreKept()
{
    QFETCH(QString, key);
    QFETCH(QVariant, set);
    QFETCH(QVariant, kept);
    QSignalSpy changed(m_fields.get(), &FieldSource::signalChanged);
    m_fields->Set(key, set);
    QVERIFY(changed.count() > 0);
    QVERIFY2(IsSame(Field(key).value, kept), qPrintable(Field(key).value.toString()));
    // As the next start reads it.
    m_fields.reset();
    m_settings.reset();
    m_settings = std::make_unique<SaveSettings>(m_file.get());
    m_fields = std::make_unique<RecordingFields>(m_settings.get(), [] { return NamePattern::Values(); });
    QVERIFY2(IsSame(Field(key).value, kept), qPrintable(Field(key).value.toString()));
}

void RecordingFieldsTest::modeDecidesWhatCanBeSet()
{
    const struct { int mode; bool frames; bool seconds; bool interval; } rows[] = {
        {0, false, false, false}, {1, true, false, true}, {2, false, true, true}, {3, false, false, true}};
    for (const auto &row : rows) {
        m_fields->Set("mode", row.mode);
        QCOMPARE(Field("frames").isEnabled, row.frames);
        QCOMPARE(Field("seconds").isEnabled, row.seconds);
        QCOMPARE(Field("interval").isEnabled, row.interval);
    }
}

void RecordingFieldsTest::nextNameIsShown()
{
    m_fields->Set("pattern", "{camera}-{date}-{number:4}");
    m_fields->Set("format", 1);
    const QString name = Field("name").value.toString();
    QVERIFY2(name.contains("Cam") && name.endsWith("-0001.fits"), qPrintable(name));
    QCOMPARE(m_settings->Get().pattern, QString("{camera}-{date}-{number:4}"));
}

void RecordingFieldsTest::nameThatCantBeIsSaidAndNotKept()
{
    const QString before = m_settings->Get().pattern;
    m_fields->Set("pattern", "{nothing}");
    QCOMPARE(Field("pattern").value.toString(), QString("{nothing}"));
    QVERIFY(Field("name").value.toString().contains("nothing"));
    QCOMPARE(m_settings->Get().pattern, before);
    m_fields->Set("frames", 5);
    QCOMPARE(Field("pattern").value.toString(), QString("{nothing}"));
    QCOMPARE(m_settings->Get().pattern, before);
}

void RecordingFieldsTest::nothingCanBeSetDuringARun()
{
    m_fields->SetBusy(true);
    for (const PanelField &field : m_fields->Fields())
        QVERIFY2(!field.isEnabled, qPrintable(field.key));
    m_fields->Set("frames", 5);
    QCOMPARE(m_settings->Get().frames, 100);
    m_fields->SetBusy(false);
    QVERIFY(Field("mode").isEnabled);
}

GUARDED_TEST_MAIN(RecordingFieldsTest)
#include "recordingfieldstest.moc"
