// SPDX-License-Identifier: GPL-3.0-or-later
#include "processchoices.h"

#include <QCoreApplication>

namespace {

constexpr double MostLevel = 1e12;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(ProcessChoices)
};

QString Px() { return Text::tr(" px"); }

PanelField Level(const QString &key, const QString &text, double value, bool isFloat)
{
    constexpr int decimalsOfFloat = 4;
    return PanelField::MakeNumber(key, text, value, -MostLevel, MostLevel, isFloat ? decimalsOfFloat : 0);
}

/// Takes the number of a field into a setting.
template <typename Number>
void Take(Number &setting, const QVariant &value)
{
    setting = Number(value.toDouble());
}

template <typename Choice>
void TakeChoice(Choice &setting, const QVariant &value, Choice last)
{
    setting = Choice(qBound(0, value.toInt(), int(last)));
}

QStringList ProjectionNames()
{
    return { Text::tr("Maximum"), Text::tr("Minimum"), Text::tr("Mean"),
             Text::tr("Median"),  Text::tr("Sum"),     Text::tr("Standard deviation") };
}

bool HasFractions(const ProjectionSettings &settings)
{
    return settings.method == ProjectionSettings::Method::Mean
           || settings.method == ProjectionSettings::Method::Median;
}

void AddProjection(PanelFields &fields, const ProjectionSettings &settings)
{
    fields << PanelField::MakeChoice("method", Text::tr("Value"), int(settings.method), ProjectionNames());
    fields << PanelField::Make(PanelField::Kind::Check, "fractions", Text::tr("Keep fractions"),
                               settings.keepsFractions);
    fields.last().isEnabled = HasFractions(settings);
    fields.last().toolTip =
        Text::tr("The result is floating point instead of the kind of samples of the frames.");
}

/// Writes the value of a field into the settings that have such a field.
class Setter
{
public:
    Setter(const QString &key, const QVariant &value, const ProcessChoices::Context &context)
        : m_key(key)
        , m_value(value)
        , m_context(context)
    {
    }

    bool operator()(std::monostate &) const { return false; }
    bool operator()(BackgroundSettings &settings) const
    {
        if (m_key == "method")
            TakeChoice(settings.method, m_value, BackgroundSettings::Method::Plane);
        else if (m_key == "level")
            Take(settings.level, m_value);
        else if (m_key == "radius")
            Take(settings.radius, m_value);
        else
            return false;
        return true;
    }
    bool operator()(FlatFieldSettings &settings) const
    {
        if (m_key != "reference")
            return false;
        settings.reference = m_context.references.value(m_value.toInt());
        return true;
    }
    bool operator()(DenoiseSettings &settings) const
    {
        if (m_key == "method")
            TakeChoice(settings.method, m_value, DenoiseSettings::Method::Bilateral);
        else if (m_key == "sigma")
            Take(settings.sigma, m_value);
        else if (m_key == "radius")
            Take(settings.radius, m_value);
        else if (m_key == "levelSigma")
            Take(settings.levelSigma, m_value);
        else
            return false;
        return true;
    }
    bool operator()(SharpenSettings &settings) const
    {
        if (m_key == "sigma")
            Take(settings.sigma, m_value);
        else if (m_key == "amount")
            Take(settings.amount, m_value);
        else
            return false;
        return true;
    }
    bool operator()(ThresholdSettings &settings) const
    {
        if (m_key == "automatic")
            settings.isAutomatic = m_value.toBool();
        else if (m_key == "level")
            Take(settings.level, m_value);
        else if (m_key == "dark")
            settings.takesDark = m_value.toBool();
        else
            return false;
        return true;
    }
    bool operator()(MorphologySettings &settings) const
    {
        if (m_key == "method")
            TakeChoice(settings.method, m_value, MorphologySettings::Method::TopHat);
        else if (m_key == "shape")
            TakeChoice(settings.shape, m_value, MorphologySettings::Shape::Disc);
        else if (m_key == "radius")
            Take(settings.radius, m_value);
        else
            return false;
        return true;
    }
    bool operator()(BinningSettings &settings) const
    {
        if (m_key == "size")
            Take(settings.size, m_value);
        else if (m_key == "sums")
            settings.sums = m_value.toInt() == 1;
        else
            return false;
        return true;
    }
    bool operator()(BandPassSettings &settings) const
    {
        if (m_key == "smallest")
            Take(settings.smallest, m_value);
        else if (m_key == "largest")
            Take(settings.largest, m_value);
        else
            return false;
        return true;
    }
    bool operator()(ProjectionSettings &settings) const
    {
        if (m_key == "method")
            TakeChoice(settings.method, m_value, ProjectionSettings::Method::StandardDeviation);
        else if (m_key == "fractions")
            settings.keepsFractions = m_value.toBool();
        else
            return false;
        return true;
    }
    bool operator()(MergeSettings &settings) const { return (*this)(settings.projection); }

private:
    const QString &m_key;
    const QVariant &m_value;
    const ProcessChoices::Context &m_context;
};

} // namespace

QStringList ProcessChoices::Names()
{
    return { Text::tr("None"),          Text::tr("Background"),
             Text::tr("Flat field"),    Text::tr("Denoise"),
             Text::tr("Sharpen"),       Text::tr("Threshold"),
             Text::tr("Morphology"),    Text::tr("Binning"),
             Text::tr("Band pass"),     Text::tr("Projection of the stack"),
             Text::tr("Merge pictures") };
}

QString ProcessChoices::StepText(const ProcessSettings &settings)
{
    return Names().at(int(settings.index()));
}

void ProcessChoices::SetIndex(int index) { m_index = qBound(0, index, m_settings.size() - 1); }

ProcessSettings ProcessChoices::Settings(const Context &context) const
{
    ProcessSettings settings = m_settings.at(m_index);
    if (auto *merge = std::get_if<MergeSettings>(&settings))
        merge->others = context.others;
    auto *flat = std::get_if<FlatFieldSettings>(&settings);
    if (flat && !context.references.contains(flat->reference))
        flat->reference = context.references.value(0);
    return settings;
}

PanelFields ProcessChoices::Fields(const Context &context) const
{
    PanelFields fields;
    std::visit([&](const auto &settings) { AddFields(fields, settings, context); }, Settings(context));
    return fields;
}

bool ProcessChoices::Set(const QString &key, const QVariant &value, const Context &context)
{
    return std::visit(Setter(key, value, context), m_settings[m_index]);
}

void ProcessChoices::AddFields(PanelFields &fields, const BackgroundSettings &settings,
                               const Context &context) const
{
    fields << PanelField::MakeChoice(
        "method", Text::tr("Take away"), int(settings.method),
        { Text::tr("A level"), Text::tr("Wide structures"), Text::tr("A slope") });
    if (settings.method == BackgroundSettings::Method::Constant)
        fields << Level("level", Text::tr("Level"), settings.level, context.isFloat);
    if (settings.method == BackgroundSettings::Method::Opening) {
        fields << PanelField::MakeNumber("radius", Text::tr("Radius"), settings.radius, 1,
                                         BackgroundSettings::MostRadius, 0, Px());
        fields.last().toolTip = Text::tr("Structures that are narrower than twice the radius stay.");
    }
}

void ProcessChoices::AddFields(PanelFields &fields, const FlatFieldSettings &settings,
                               const Context &context) const
{
    fields << PanelField::MakeChoice("reference", Text::tr("Reference"),
                                     context.references.indexOf(settings.reference), context.referenceNames);
    fields.last().isEnabled = !context.references.isEmpty();
    fields.last().toolTip = Text::tr("An opened picture of an evenly lit field, of the same size.");
    if (context.references.isEmpty())
        fields << PanelField::MakeNote(QString(), "hint", QString(),
                                       Text::tr("Open a picture of an evenly lit field beside this one."));
}

void ProcessChoices::AddFields(PanelFields &fields, const DenoiseSettings &settings, const Context &) const
{
    using Method = DenoiseSettings::Method;
    fields << PanelField::MakeChoice("method", Text::tr("Filter"), int(settings.method),
                                     { Text::tr("Gaussian"), Text::tr("Median"), Text::tr("Bilateral") });
    if (settings.method == Method::Median) {
        fields << PanelField::MakeNumber("radius", Text::tr("Radius"), settings.radius, 1,
                                         DenoiseSettings::MostRadius, 0, Px());
        return;
    }
    const bool isBilateral = settings.method == Method::Bilateral;
    fields << PanelField::MakeNumber(
        "sigma", Text::tr("Sigma"), settings.sigma, DenoiseSettings::LeastSigma,
        isBilateral ? DenoiseSettings::MostBilateralSigma : DenoiseSettings::MostSigma, 1, Px());
    fields.last().step = 0.5;
    if (isBilateral) {
        fields << PanelField::MakeNumber("levelSigma", Text::tr("Edge height"), settings.levelSigma, 0.001,
                                         MostLevel, 3);
        fields.last().toolTip =
            Text::tr("Steps that are higher than this, in units of the samples, stay sharp.");
    }
}

void ProcessChoices::AddFields(PanelFields &fields, const SharpenSettings &settings, const Context &) const
{
    fields << PanelField::MakeNumber("sigma", Text::tr("Sigma"), settings.sigma, DenoiseSettings::LeastSigma,
                                     DenoiseSettings::MostSigma, 1, Px());
    fields.last().step = 0.5;
    fields << PanelField::MakeNumber("amount", Text::tr("Amount"), settings.amount, 0,
                                     SharpenSettings::MostAmount, 2);
    fields.last().step = 0.1;
}

void ProcessChoices::AddFields(PanelFields &fields, const ThresholdSettings &settings,
                               const Context &context) const
{
    fields << PanelField::Make(PanelField::Kind::Check, "automatic", Text::tr("Find the level"),
                               settings.isAutomatic);
    fields << Level("level", Text::tr("Level"), settings.level, context.isFloat);
    fields.last().isEnabled = !settings.isAutomatic;
    fields << PanelField::Make(PanelField::Kind::Check, "dark", Text::tr("Take what is darker"),
                               settings.takesDark);
}

void ProcessChoices::AddFields(PanelFields &fields, const MorphologySettings &settings, const Context &) const
{
    const bool isDisc = settings.shape == MorphologySettings::Shape::Disc;
    fields << PanelField::MakeChoice(
        "method", Text::tr("Operation"), int(settings.method),
        { Text::tr("Erode"), Text::tr("Dilate"), Text::tr("Open"), Text::tr("Close"), Text::tr("Top hat") });
    fields << PanelField::MakeChoice("shape", Text::tr("Shape"), int(settings.shape),
                                     { Text::tr("Square"), Text::tr("Disc") });
    fields << PanelField::MakeNumber(
        "radius", Text::tr("Radius"), settings.radius, 1,
        isDisc ? MorphologySettings::MostDiscRadius : MorphologySettings::MostSquareRadius, 0, Px());
}

void ProcessChoices::AddFields(PanelFields &fields, const BinningSettings &settings, const Context &) const
{
    fields << PanelField::MakeNumber("size", Text::tr("Square"), settings.size, 2, BinningSettings::MostSize,
                                     0, Px());
    fields << PanelField::MakeChoice("sums", Text::tr("Value"), settings.sums ? 1 : 0,
                                     { Text::tr("Mean"), Text::tr("Sum") });
}

void ProcessChoices::AddFields(PanelFields &fields, const BandPassSettings &settings, const Context &) const
{
    fields << PanelField::MakeNumber("smallest", Text::tr("From"), settings.smallest, 0,
                                     BandPassSettings::MostLength, 1, Px());
    fields.last().zeroText = Text::tr("all small ones");
    fields.last().toolTip = Text::tr("Smaller structures are taken away.");
    fields << PanelField::MakeNumber("largest", Text::tr("To"), settings.largest, 0,
                                     BandPassSettings::MostLength, 1, Px());
    fields.last().zeroText = Text::tr("all large ones");
    fields.last().toolTip = Text::tr("Larger structures are taken away.");
}

void ProcessChoices::AddFields(PanelFields &fields, const ProjectionSettings &settings,
                               const Context &context) const
{
    AddProjection(fields, settings);
    fields << PanelField::MakeNote(QString(), "frames", Text::tr("Frames"), QString::number(context.frames));
}

void ProcessChoices::AddFields(PanelFields &fields, const MergeSettings &settings,
                               const Context &context) const
{
    AddProjection(fields, settings.projection);
    const QString none = Text::tr("Check the other pictures to merge in the list of opened pictures.");
    fields << PanelField::MakeNote(QString(), "others", Text::tr("With"),
                                   context.otherNames.isEmpty() ? none : context.otherNames.join('\n'));
}
