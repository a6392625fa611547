// SPDX-License-Identifier: GPL-3.0-or-later
#include "scenecatalogue.h"

#include "specimenscene.h"
#include "spectrographscene.h"
#include "testchartscene.h"

namespace {

constexpr char kSeparator = ':';

bool ReadSettings(const QString &description, SpectrographSettings *settings, QString *fault)
{
    return !description.contains(kSeparator) || settings->Read(description.section(kSeparator, 1), fault);
}

} // namespace

QStringList SceneCatalogue::Names()
{
    return { SpecimenScene::SceneName(), SpectrographScene::SceneName(), TestChartScene::SceneName() };
}

QString SceneCatalogue::DefaultName() { return SpecimenScene::SceneName(); }

QString SceneCatalogue::NameIn(const QString &description) { return description.section(kSeparator, 0, 0); }

QString SceneCatalogue::FaultIn(const QString &description)
{
    const QString name = NameIn(description);
    if (!description.contains(kSeparator))
        return QString();
    if (name != SpectrographScene::SceneName())
        return QString("the scene \"%1\" has no settings.").arg(name);
    SpectrographSettings settings;
    QString fault;
    ReadSettings(description, &settings, &fault);
    return fault;
}

std::unique_ptr<Scene> SceneCatalogue::Create(const QString &description, quint32 seed)
{
    if (description == SpecimenScene::SceneName())
        return std::make_unique<SpecimenScene>(seed);
    if (description == TestChartScene::SceneName())
        return std::make_unique<TestChartScene>();
    SpectrographSettings settings;
    QString fault;
    if (NameIn(description) == SpectrographScene::SceneName() && ReadSettings(description, &settings, &fault))
        return std::make_unique<SpectrographScene>(seed, settings);
    return nullptr;
}
