// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "panelfield.h"

/// One field each, enabled.
PanelField NumberField(const QString &key, const QString &text, double value, double minimum, double maximum,
                       int decimals = 0, const QString &unit = QString());
PanelField ChoiceField(const QString &key, const QString &text, int index, const QStringList &choices);
PanelField CheckField(const QString &key, const QString &text, bool value);
PanelField ActionField(const QString &key, const QString &text, bool isEnabled = true);
PanelField NoteField(const QString &key, const QString &text, const QString &value);
/// Puts the fields from `first` on under one heading.
void SetGroup(PanelFields &fields, int first, const QString &group);
