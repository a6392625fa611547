// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "panelfield.h"
#include "processsettings.h"

/// The steps of processing as a person chooses among them, each with the settings that it had last. GUI thread.
class ProcessChoices
{
public:
    /// What the fields need to know of the pictures.
    struct Context
    {
        bool isFloat = false;
        int frames = 0;
        QStringList references;     ///< files that a field can be divided by
        QStringList referenceNames; ///< the same for the eye
        QStringList others;         ///< files to merge with
        QStringList otherNames;
    };

    /// In the order of ProcessSettings; the first is none.
    static QStringList Names();
    /// What a step is called in the list of what can be undone.
    static QString StepText(const ProcessSettings &settings);

    int Index() const { return m_index; }
    void SetIndex(int index);
    ProcessSettings Settings(const Context &context) const;
    PanelFields Fields(const Context &context) const;
    /// False when there is no such setting now.
    bool Set(const QString &key, const QVariant &value, const Context &context);

private:
    void AddFields(PanelFields &fields, const BackgroundSettings &settings, const Context &context) const;
    void AddFields(PanelFields &fields, const FlatFieldSettings &settings, const Context &context) const;
    void AddFields(PanelFields &fields, const DenoiseSettings &settings, const Context &context) const;
    void AddFields(PanelFields &fields, const SharpenSettings &settings, const Context &context) const;
    void AddFields(PanelFields &fields, const ThresholdSettings &settings, const Context &context) const;
    void AddFields(PanelFields &fields, const MorphologySettings &settings, const Context &context) const;
    void AddFields(PanelFields &fields, const BinningSettings &settings, const Context &context) const;
    void AddFields(PanelFields &fields, const BandPassSettings &settings, const Context &context) const;
    void AddFields(PanelFields &fields, const ProjectionSettings &settings, const Context &context) const;
    void AddFields(PanelFields &fields, const MergeSettings &settings, const Context &context) const;
    void AddFields(PanelFields &, const std::monostate &, const Context &) const {}

    int m_index = 0;
    QVector<ProcessSettings> m_settings = { std::monostate(),     BackgroundSettings(), FlatFieldSettings(),
                                            DenoiseSettings(),    SharpenSettings(),    ThresholdSettings(),
                                            MorphologySettings(), BinningSettings(),    BandPassSettings(),
                                            ProjectionSettings(), MergeSettings() };
};
