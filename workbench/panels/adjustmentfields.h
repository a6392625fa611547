// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "fieldsource.h"
#include "levelsreport.h"
#include "levelssetting.h"

class LevelsModel;

/// How a picture is shown, the live one or the opened one: levels beside the histogram of its raw samples, gamma, palette
/// and mark of saturated pixels, and how it is laid. No sample is changed. GUI thread.
class AdjustmentFields : public FieldSource
{
    Q_OBJECT

public:
    /// `model` is borrowed and outlives this object.
    AdjustmentFields(const QString &name, LevelsModel *model, QObject *parent = nullptr);

    PanelFields Fields() const override;
    void Set(const QString &key, const QVariant &value) override;
    void SetWatched(bool watched) override;

public slots:
    void slotReport(LevelsReport report);
    /// There is no picture whose levels can be set.
    void slotNoReport(QString reason);

signals:
    /// Reports are wanted, or no longer.
    void signalWatched(bool watched);
    /// The picture is to be turned or flipped; `type` is a RotateType.
    void signalTurnWanted(int type);

private:
    void AddLevels(PanelFields &fields) const;
    void AddColours(PanelFields &fields) const;
    void AddPosition(PanelFields &fields) const;
    PanelField LevelField(const QString &key, const QString &text, double level, double manualLevel) const;
    void SetLevels(const QString &key, const QVariant &value);

    LevelsModel *m_model;
    LevelsReport m_report;
    bool m_hasPicture = false;
    QString m_reason; ///< why there is none
};
