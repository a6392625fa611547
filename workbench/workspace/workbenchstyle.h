// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProxyStyle>

/// The base style under the style sheet: Fusion, with disabled icons faded instead of greyed, since
/// grey of a light line icon is hardly darker than the icon itself.
/// Owned by the application it is set on.
class WorkbenchStyle : public QProxyStyle
{
    Q_OBJECT

public:
    WorkbenchStyle();

    QPixmap generatedIconPixmap(QIcon::Mode mode, const QPixmap &pixmap,
                                const QStyleOption *option) const override;
};
