// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

/// A new page of the left stack: a bar above a panel's tabs, both of which it takes. The caller owns
/// the page.
QWidget *MakeControlPage(QWidget *bar, QWidget *tabs);
