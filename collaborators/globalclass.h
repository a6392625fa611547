// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "collaboratorsexport.h"

#include <QString>
#include <QStringList>

class QWidget;

/// Helpers that every part of the user interface shares. All static, GUI thread.
class GLOBALUI_COLLABORATORS_EXPORT GlobalClass
{
public:
    /// A design size in screen pixels. The scale is the primary screen's logical dots per inch over
    /// 96, never below 1; the application's property "globalui.scale" (a number) sets another one.
    static int GetActualSize(int designSize);
    /// Width in pixels of a text in the application's font, with room for a frame around it.
    static int GetStringWidth(const QString &text);
    /// The same for a text that stands beside a caption: a little more room.
    static int GetStringWidth2(const QString &text);
    /// The character with this Latin-1 code: 176 gives the degree sign.
    static QString GetSpecialSymbol(int code);
    static bool IsCtrlKeyPressed();
    /// A new two-column widget of label/value pairs: label, value, label, value… The caller owns it.
    static QWidget *GetPropertyUI(const QStringList &labelsAndValues);
    /// A string of the version resource of a Windows program file (e.g. "ProductVersion"); empty
    /// when the file or the string is not there. Slashes of `path` may stand either way.
    static QString GetSoftWareVersion(const QString &path, const QString &key);
};
