// SPDX-License-Identifier: GPL-3.0-or-later
#include "adjustmentfields.h"

#include "levelscurve.h"
#include "levelsmodel.h"
#include "levelstexts.h"
#include "viewcodes.h"

#include <cmath>

namespace {

constexpr double GammaStep = 0.1;
/// Levels of floating point samples can be set so many widths of the histogram beside it.
constexpr double WidthsBeside = 10;

/// Decimals that tell a thousandth of `width`.
int DecimalsFor(double width)
{
    constexpr int most = 12;
    return width > 0 ? qBound(0, 3 - int(std::floor(std::log10(width))), most) : 0;
}

} // namespace

AdjustmentFields::AdjustmentFields(const QString &name, LevelsModel *model, QObject *parent)
    : FieldSource(name, parent)
    , m_model(model)
{
    connect(model, &LevelsModel::signalChanged, this, &FieldSource::signalChanged);
}

PanelFields AdjustmentFields::Fields() const
{
    PanelFields fields;
    AddLevels(fields);
    AddColours(fields);
    AddPosition(fields);
    return fields;
}

void AdjustmentFields::AddLevels(PanelFields &fields) const
{
    const int first = fields.size();
    const LevelsSetting setting = m_model->Setting(m_report.kind);
    const HistogramCurve curve = m_hasPicture ? LevelsCurve(m_report) : HistogramCurve();
    fields << PanelField::Make(PanelField::Kind::Histogram, "samples", tr("Histogram"), QVariant::fromValue(curve));
    fields << PanelField::Make(PanelField::Kind::Note, "kind", tr("Samples"),
                               m_hasPicture ? LevelsTexts::Kind(m_report.kind) : m_reason);
    QStringList modes = LevelsTexts::Modes();
    if (!m_report.kind.IsWhole())
        modes.removeLast(); // such samples have no full range
    fields << PanelField::MakeChoice("mode", tr("Mode"), int(setting.mode), modes);
    fields << LevelField("black", tr("Black"), m_report.levels.left, setting.left);
    fields << LevelField("white", tr("White"), m_report.levels.right, setting.right);
    fields << PanelField::MakeNumber("gamma", tr("Gamma"), setting.gamma, DisplayLevels::LeastGamma,
                                     DisplayLevels::MostGamma, 2);
    fields.last().step = GammaStep;
    fields.last().toolTip = tr("Above 1 it brightens the middle.");
    fields << PanelField::MakeAction("reset", tr("Reset Levels"));
    SetGroup(fields, first, tr("Levels"));
    for (int i = first; i < fields.size(); ++i)
        fields[i].isEnabled &= m_hasPicture;
}

/// What is seen in every mode; it can be set by hand in one.
PanelField AdjustmentFields::LevelField(const QString &key, const QString &text, double level, double manualLevel) const
{
    const bool isManual = m_model->Setting(m_report.kind).mode == LevelsMode::Manual;
    const SampleRange axis = m_report.axis;
    const double beside = (axis.right - axis.left) * WidthsBeside;
    const bool isWhole = m_report.kind.IsWhole();
    const double least = isWhole ? m_report.kind.Least() : axis.left - beside;
    const double most = isWhole ? m_report.kind.Most() : axis.right + beside;
    const double shown = isManual ? manualLevel : level;
    PanelField field = PanelField::MakeNumber(key, text, shown, qMin(least, shown), qMax(most, shown),
                                              isWhole ? 0 : DecimalsFor(axis.right - axis.left));
    field.step = isWhole ? 1 : std::pow(10.0, 1 - field.decimals);
    field.isEnabled = isManual;
    return field;
}

void AdjustmentFields::AddColours(PanelFields &fields) const
{
    const int first = fields.size();
    QStringList titles;
    for (const QString &name : Palette::Names())
        titles << LevelsTexts::PaletteTitle(name).remove('&');
    fields << PanelField::MakeChoice("palette", tr("Palette"), Palette::Names().indexOf(m_model->GetPalette().Name()),
                                     titles);
    fields.last().toolTip = tr("Of mono pictures; colour pictures keep their own colours.");
    fields << PanelField::Make(PanelField::Kind::Check, "saturated", tr("Mark saturated pixels"),
                               m_model->MarksSaturated());
    fields.last().toolTip = tr("Pixels at full scale are shown red (Ctrl+M).");
    SetGroup(fields, first, tr("Colours"));
}

void AdjustmentFields::AddPosition(PanelFields &fields) const
{
    const int first = fields.size();
    fields << PanelField::MakeAction("flipHorizontal", tr("Flip Horizontally"), m_hasPicture);
    fields.last().toolTip = tr("Ctrl+H");
    fields << PanelField::MakeAction("flipVertical", tr("Flip Vertically"), m_hasPicture);
    fields.last().toolTip = tr("Ctrl+V");
    fields.last().isBeside = true;
    fields << PanelField::MakeAction("rotate", tr("Rotate by 90°"), m_hasPicture);
    fields.last().toolTip = tr("Clockwise (Ctrl+R)");
    SetGroup(fields, first, tr("Position"));
}

void AdjustmentFields::Set(const QString &key, const QVariant &value)
{
    if (key == "palette")
        m_model->SetPalette(Palette(Palette::Names().value(value.toInt())));
    else if (key == "saturated")
        m_model->slotSetMarksSaturated(value.toBool());
    else if (m_hasPicture && key == "flipHorizontal")
        emit signalTurnWanted(FlipHorizontal);
    else if (m_hasPicture && key == "flipVertical")
        emit signalTurnWanted(FlipVertical);
    else if (m_hasPicture && key == "rotate")
        emit signalTurnWanted(RotateBy90);
    else if (m_hasPicture)
        SetLevels(key, value);
}

void AdjustmentFields::SetLevels(const QString &key, const QVariant &value)
{
    LevelsSetting setting = m_model->Setting(m_report.kind);
    if (key == "mode") {
        setting.mode = LevelsMode(qBound(0, value.toInt(), int(LevelsMode::FullRange)));
        if (setting.mode == LevelsMode::Manual) { // starts from what is seen
            setting.left = m_report.levels.left;
            setting.right = m_report.levels.right;
        }
    } else if (key == "black") {
        setting.left = value.toDouble();
    } else if (key == "white") {
        setting.right = value.toDouble();
    } else if (key == "gamma") {
        setting.gamma = value.toDouble();
    } else if (key == "reset") {
        setting = LevelsSetting::Default(m_report.kind);
    } else {
        return;
    }
    m_model->SetSetting(m_report.kind, setting);
}

void AdjustmentFields::SetWatched(bool watched) { emit signalWatched(watched); }

void AdjustmentFields::slotReport(LevelsReport report)
{
    m_report = report;
    m_hasPicture = true;
    emit signalChanged();
}

void AdjustmentFields::slotNoReport(QString reason)
{
    m_hasPicture = false;
    m_reason = reason;
    emit signalChanged();
}
