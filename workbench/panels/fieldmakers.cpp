// SPDX-License-Identifier: GPL-3.0-or-later
#include "fieldmakers.h"

namespace {

PanelField Field(PanelField::Kind kind, const QString &key, const QString &text, const QVariant &value)
{
    PanelField field;
    field.kind = kind;
    field.key = key;
    field.text = text;
    field.value = value;
    return field;
}

} // namespace

PanelField NumberField(const QString &key, const QString &text, double value, double minimum, double maximum,
                       int decimals, const QString &unit)
{
    PanelField field = Field(PanelField::Kind::Number, key, text, value);
    field.minimum = minimum;
    field.maximum = maximum;
    field.decimals = decimals;
    field.unit = unit;
    return field;
}

PanelField ChoiceField(const QString &key, const QString &text, int index, const QStringList &choices)
{
    PanelField field = Field(PanelField::Kind::Choice, key, text, index);
    field.choices = choices;
    return field;
}

PanelField CheckField(const QString &key, const QString &text, bool value)
{
    return Field(PanelField::Kind::Check, key, text, value);
}

PanelField ActionField(const QString &key, const QString &text, bool isEnabled)
{
    PanelField field = Field(PanelField::Kind::Action, key, text, QVariant());
    field.isEnabled = isEnabled;
    return field;
}

PanelField NoteField(const QString &key, const QString &text, const QString &value)
{
    return Field(PanelField::Kind::Note, key, text, value);
}

void SetGroup(PanelFields &fields, int first, const QString &group)
{
    for (int i = first; i < fields.size(); ++i)
        fields[i].group = group;
}
