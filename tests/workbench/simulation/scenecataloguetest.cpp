// SPDX-License-Identifier: GPL-3.0-or-later
#include "scenecatalogue.h"
#include "guardedtest.h"
#include "sceneexposure.h"

class SceneCatalogueTest : public GuardedTest
{
    Q_OBJECT

private slots:
    void CreatesEverySceneByItsName();
    void KnowsNoOtherName();
    void SettingsFollowTheName();
    void RepeatsBySeed_data();
    void RepeatsBySeed();
};

void SceneCatalogueTest::CreatesEverySceneByItsName()
{
    QCOMPARE(SceneCatalogue::Names(), QStringList({ "specimen", "spectrograph", "testchart" }));
    QVERIFY(SceneCatalogue::Names().contains(SceneCatalogue::DefaultName()));
    for (const QString &name : SceneCatalogue::Names()) {
        const std::unique_ptr<Scene> scene = SceneCatalogue::Create(name);
        QVERIFY(scene);
        QCOMPARE(scene->Name(), name);
    }
}

void SceneCatalogueTest::KnowsNoOtherName()
{
    QVERIFY(!SceneCatalogue::Create("holiday"));
    QVERIFY(!SceneCatalogue::Create(QString()));
}

void SceneCatalogueTest::SettingsFollowTheName()
{
    QVERIFY(SceneCatalogue::FaultIn("spectrograph:smile=6,tracks=5").isEmpty());
    const std::unique_ptr<Scene> scene = SceneCatalogue::Create("spectrograph:smile=6,tracks=5");
    QVERIFY(scene);
    QCOMPARE(scene->Name(), QString("spectrograph"));
    QCOMPARE(SceneCatalogue::NameIn("spectrograph:smile=6"), QString("spectrograph"));

    QCOMPARE(SceneCatalogue::FaultIn("testchart:smile=6"), QString("the scene \"testchart\" has no settings."));
    QVERIFY(!SceneCatalogue::Create("testchart:smile=6"));
    QCOMPARE(SceneCatalogue::FaultIn("spectrograph:tracks=99"),
             QString("\"tracks=99\" needs a whole number from 1 to 20."));
    QVERIFY(!SceneCatalogue::Create("spectrograph:tracks=99"));
    QVERIFY(!SceneCatalogue::Create("spectrograph:"));
}

void SceneCatalogueTest::RepeatsBySeed_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("specimen") << "specimen";
    QTest::newRow("spectrograph") << "spectrograph";
}

void SceneCatalogueTest::RepeatsBySeed()
{
    QFETCH(QString, name);
    const std::unique_ptr<Scene> scene = SceneCatalogue::Create(name, 5);
    const std::unique_ptr<Scene> twin = SceneCatalogue::Create(name, 5);
    const std::unique_ptr<Scene> other = SceneCatalogue::Create(name, 6);

    for (const QSize size : { QSize(1, 1), QSize(3, 5), QSize(641, 479), QSize(2500, 3) }) {
        for (const int bitDepth : { 8, 12, 16, 24 }) { // 24: colour
            const bool isColour = bitDepth == 24;
            const auto expose = [&](Scene &watched, quint64 frameNumber) {
                SceneExposure exposure(size.width(), size.height(), isColour ? 8 : bitDepth, isColour);
                exposure.Settings().frameNumber = frameNumber;
                exposure.Expose(watched);
                return exposure;
            };
            const SceneExposure first = expose(*scene, 12);
            QVERIFY(first.IsPaddingUntouched());
            QVERIFY(first.Maximum() < (1 << (isColour ? 8 : bitDepth)));
            QCOMPARE(expose(*twin, 12).Bytes(), first.Bytes());
            if (size.width() * size.height() > 100) { // a few samples may be the same by chance
                QVERIFY(expose(*scene, 13).Bytes() != first.Bytes());
                QVERIFY(expose(*other, 12).Bytes() != first.Bytes());
            }
        }
    }
}

GUARDED_TEST_MAIN(SceneCatalogueTest)
#include "scenecataloguetest.moc"
