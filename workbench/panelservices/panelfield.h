// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

/// One thing that a panel shows and lets be set.
struct PanelField
{
    enum class Kind {
        Number, ///< value: double
        Choice, ///< value: int, index into `choices`
        Check,  ///< value: bool
        Text,   ///< value: QString
        Folder, ///< value: QString, a path
        Action, ///< something to do; value is not used
        Note,   ///< value: QString that is only read
        Colour, ///< value: QColor
        Histogram ///< value: HistogramCurve
    };

    QString key;  ///< names the field to its source; the widget is called "<kind><Key>", as in "numberExposure"
    QString text; ///< label; a mnemonic in it is left out
    Kind kind = Kind::Note;
    QVariant value;
    bool isEnabled = true;
    /// Stands behind the field before it, in the same row.
    bool isBeside = false;
    QString group = {};   ///< heading; a new one begins a new box
    QString toolTip = {}; ///< more than the label and the limits say; may be empty
    // Of a number.
    double minimum = 0;
    double maximum = 0;
    double step = 1;
    int decimals = 0;
    QString unit = {};
    QString zeroText = {}; ///< shown instead of the smallest value; may be empty
    // Of a choice.
    QStringList choices = {};

    static PanelField Make(Kind kind, const QString &key, const QString &text, const QVariant &value = QVariant())
    {
        PanelField field;
        field.kind = kind;
        field.key = key;
        field.text = text;
        field.value = value;
        return field;
    }

    static PanelField MakeNumber(const QString &key, const QString &text, double value, double minimum, double maximum,
                                 int decimals = 0, const QString &unit = QString())
    {
        PanelField field = Make(Kind::Number, key, text, value);
        field.minimum = minimum;
        field.maximum = maximum;
        field.decimals = decimals;
        field.unit = unit;
        return field;
    }

    static PanelField MakeChoice(const QString &key, const QString &text, int index, const QStringList &choices)
    {
        PanelField field = Make(Kind::Choice, key, text, index);
        field.choices = choices;
        return field;
    }

    static PanelField MakeAction(const QString &key, const QString &text, bool isEnabled = true)
    {
        PanelField field = Make(Kind::Action, key, text);
        field.isEnabled = isEnabled;
        return field;
    }

    static PanelField MakeNote(const QString &group, const QString &key, const QString &text,
                               const QString &value)
    {
        PanelField field = Make(Kind::Note, key, text, value);
        field.group = group;
        return field;
    }
};

using PanelFields = QVector<PanelField>;

/// Puts the fields from `first` on under one heading.
inline void SetGroup(PanelFields &fields, int first, const QString &group)
{
    for (int i = first; i < fields.size(); ++i)
        fields[i].group = group;
}
