// SPDX-License-Identifier: GPL-3.0-or-later
#include "globalclass.h"

#include "versionresource.h"

#include <QFontMetrics>
#include <QFormLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <QVariant>
#include <QWidget>

namespace {

constexpr qreal DesignDotsPerInch = 96.0;
constexpr int TextMargin = 10;        // design pixels: the frame of a line edit, both sides
constexpr int CaptionedTextMargin = 20;

/// Screen pixels per design pixel.
qreal DisplayScale()
{
    if (!qApp)
        return 1.0;
    const qreal chosen = qApp->property("globalui.scale").toReal();
    if (chosen > 0.0)
        return chosen;
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? qMax(1.0, screen->logicalDotsPerInch() / DesignDotsPerInch) : 1.0;
}

int TextWidth(const QString &text, int margin)
{
    return QFontMetrics(QGuiApplication::font()).horizontalAdvance(text) + GlobalClass::GetActualSize(margin);
}

} // namespace

int GlobalClass::GetActualSize(int designSize)
{
    return qRound(designSize * DisplayScale());
}

int GlobalClass::GetStringWidth(const QString &text)
{
    return TextWidth(text, TextMargin);
}

int GlobalClass::GetStringWidth2(const QString &text)
{
    return TextWidth(text, CaptionedTextMargin);
}

QString GlobalClass::GetSpecialSymbol(int code)
{
    return QString(QChar(code & 0xFF));
}

bool GlobalClass::IsCtrlKeyPressed()
{
    return QGuiApplication::queryKeyboardModifiers().testFlag(Qt::ControlModifier);
}

QWidget *GlobalClass::GetPropertyUI(const QStringList &labelsAndValues)
{
    auto *properties = new QWidget; // the caller owns it
    auto *form = new QFormLayout(properties);
    for (int i = 0; i < labelsAndValues.size(); i += 2) {
        auto *value = new QLabel(labelsAndValues.value(i + 1), properties);
        value->setTextFormat(Qt::PlainText);
        value->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        auto *label = new QLabel(labelsAndValues.at(i), properties);
        label->setTextFormat(Qt::PlainText);
        form->addRow(label, value);
    }
    return properties;
}

QString GlobalClass::GetSoftWareVersion(const QString &path, const QString &key)
{
    QString filePath = path;
    filePath.replace('\\', '/');
    return VersionString(ReadResourceSection(filePath), key);
}
