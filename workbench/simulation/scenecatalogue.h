// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "scene.h"

#include <QStringList>
#include <memory>

/// The scenes a user can put before the simulated camera.
class SceneCatalogue
{
public:
    static QStringList Names();
    static QString DefaultName();
    /// Null for a name that is not in the catalogue. The seed fixes positions, textures and noise.
    static std::unique_ptr<Scene> Create(const QString &name, quint32 seed = 1);
};
