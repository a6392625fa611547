// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fieldsource.h"
#include "namepattern.h"

#include <functional>

class SaveSettings;
struct RecordingSettings;

/// What the next recording is to be, with an example of the name its file will get. A wish is kept at once, but one
/// for a name that can't be: that stays in its field until it is mended. GUI thread.
class RecordingFields : public FieldSource
{
    Q_OBJECT

public:
    /// What names are made of now.
    using Example = std::function<NamePattern::Values()>;

    /// `settings` is borrowed and outlives this object.
    RecordingFields(SaveSettings *settings, const Example &example, QObject *parent = nullptr);

    PanelFields Fields() const override;
    void Set(const QString &key, const QVariant &value) override;
    /// A recording is going on: nothing can be set.
    void SetBusy(bool busy);

private:
    void AddRun(PanelFields &fields, const RecordingSettings &settings) const;
    void AddFile(PanelFields &fields, const RecordingSettings &settings) const;
    QString NameText(const RecordingSettings &settings) const;

    SaveSettings *m_settings;
    Example m_example;
    QString m_pattern; ///< as it was typed
    bool m_isBusy = false;
};
