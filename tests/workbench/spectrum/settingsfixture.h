// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "centredisplay.h"
#include "guardedtest.h"
#include "spectrumranges.h"
#include "spectrumsettings.h"

#include <QSettings>
#include <QTemporaryDir>

#include <memory>

/// Base of the tests of SpectrumSettings, and of what changes them: for each test function new ones, with a live picture of 1000 x 500 pixels.
class SettingsFixture : public GuardedTest
{
protected:
    void init() override
    {
        StartGuard();
        m_folder = std::make_unique<QTemporaryDir>();
        m_stored = std::make_unique<QSettings>(m_folder->filePath("settings.ini"), QSettings::IniFormat);
        m_ranges = std::make_unique<SpectrumRanges>();
        m_centre = std::make_unique<CentreDisplay>(m_stored.get());
        m_settings = std::make_unique<SpectrumSettings>(m_ranges.get(), m_centre.get());
        m_settings->slotSetFrameSize(QSize(1000, 500));
    }

    void cleanup() override
    {
        m_settings.reset();
        m_centre.reset();
        m_ranges.reset();
        m_stored.reset(); // writes its file, so before the folder goes
        m_folder.reset();
        EndGuard();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QSettings> m_stored;
    std::unique_ptr<SpectrumRanges> m_ranges;
    std::unique_ptr<CentreDisplay> m_centre;
    std::unique_ptr<SpectrumSettings> m_settings;
};
