// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "scene.h"

#include <QStringList>
#include <memory>

/// The scenes a user can put before the simulated camera. One is asked for by its name; the spectrograph may have
/// settings behind it: "spectrograph:smile=6,tracks=5", see SpectrographSettings.
class SceneCatalogue
{
public:
    static QStringList Names();
    static QString DefaultName();
    /// What is before the settings.
    static QString NameIn(const QString &description);
    /// What is wrong with the settings of a scene whose name is right; empty when nothing is.
    static QString FaultIn(const QString &description);
    /// Null for a name that is not in the catalogue and for faulty settings. The seed fixes positions, textures and noise.
    static std::unique_ptr<Scene> Create(const QString &description, quint32 seed = 1);
};
