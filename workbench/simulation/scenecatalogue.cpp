// SPDX-License-Identifier: GPL-3.0-or-later
#include "scenecatalogue.h"

#include "specimenscene.h"
#include "spectrographscene.h"
#include "testchartscene.h"

QStringList SceneCatalogue::Names()
{
    return { SpecimenScene::SceneName(), SpectrographScene::SceneName(), TestChartScene::SceneName() };
}

QString SceneCatalogue::DefaultName() { return SpecimenScene::SceneName(); }

std::unique_ptr<Scene> SceneCatalogue::Create(const QString &name, quint32 seed)
{
    if (name == SpecimenScene::SceneName())
        return std::make_unique<SpecimenScene>(seed);
    if (name == SpectrographScene::SceneName())
        return std::make_unique<SpectrographScene>(seed);
    if (name == TestChartScene::SceneName())
        return std::make_unique<TestChartScene>();
    return nullptr;
}
