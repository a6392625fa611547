// SPDX-License-Identifier: GPL-3.0-or-later
#include "fieldform.h"

#include "colourbutton.h"
#include "fieldsource.h"
#include "histogramview.h"
#include "numberbox.h"
#include "taborder.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QFileDialog>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShowEvent>
#include <QSignalBlocker>

namespace {

QString ObjectName(const char *kind, const QString &key)
{
    return kind + key.left(1).toUpper() + key.mid(1);
}

QStringList Shape(const PanelFields &fields)
{
    QStringList shape;
    for (const PanelField &field : fields)
        shape << QString("%1/%2/%3").arg(field.key, field.group).arg(int(field.kind));
    return shape;
}

QString ToolTip(const PanelField &field)
{
    QStringList lines;
    if (!field.toolTip.isEmpty())
        lines << field.toolTip;
    if (field.kind == PanelField::Kind::Number && field.maximum > field.minimum)
        lines << FieldForm::tr("%1 to %2%3")
                     .arg(QLocale().toString(field.minimum, 'g', 10), QLocale().toString(field.maximum, 'g', 10),
                          field.unit);
    return lines.join('\n');
}

/// The menu bar, which is seen beside every panel, has the same keys.
QString WithoutMnemonic(QString text)
{
    return text.remove('&');
}

void FillChoices(QComboBox *box, const QStringList &choices)
{
    bool isSame = box->count() == choices.size();
    for (int i = 0; isSame && i < choices.size(); ++i)
        isSame = box->itemText(i) == choices.at(i);
    if (isSame)
        return;
    box->clear();
    box->addItems(choices);
}

/// How the number is written: another picture may have finer levels. What is the same is not set again, which would
/// take from the user what is being typed.
void SetNotation(NumberBox *box, const PanelField &field)
{
    if (box->decimals() != field.decimals)
        box->setDecimals(field.decimals);
    if (box->suffix() != field.unit)
        box->setSuffix(field.unit);
    if (box->specialValueText() != field.zeroText)
        box->setSpecialValueText(field.zeroText);
    box->setSingleStep(field.step);
}

/// Who is typing is not interrupted: a space at the end is the beginning of the next word, and an emptied line is not
/// filled before the editing is finished.
void ShowText(QLineEdit *edit, const QString &text)
{
    const bool isEmptied = edit->text().trimmed().isEmpty() && edit->isModified() && edit->hasFocus();
    if (!isEmptied && edit->text().trimmed() != text.trimmed())
        edit->setText(text);
}

} // namespace

FieldForm::FieldForm(FieldSource *source, const QString &absentText, QWidget *parent)
    : QWidget(parent)
    , m_source(source)
    , m_column(new QVBoxLayout(this))
    , m_fault(new QLabel(source ? QString() : absentText, this))
{
    m_fault->setObjectName("labelFault");
    m_fault->setWordWrap(true);
    m_fault->setTextInteractionFlags(
        Qt::TextSelectableByMouse); // may have the focus: ChainTabOrder() wants that
    m_column->addWidget(m_fault);
    m_column->addStretch();
    if (!source)
        return;
    m_fault->hide();
    connect(source, &FieldSource::signalChanged, this, &FieldForm::slotUpdate);
    connect(source, &FieldSource::signalFault, this, &FieldForm::slotFault);
    connect(source, &QObject::destroyed, this, &FieldForm::slotSourceGone);
}

/// Minimising the window, which the window system tells, is no turning away: a step that is tried goes on.
void FieldForm::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_source && !event->spontaneous())
        m_source->SetWatched(true);
    slotUpdate();
}

void FieldForm::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    if (m_source && !event->spontaneous())
        m_source->SetWatched(false);
}

void FieldForm::slotUpdate()
{
    if (!m_source || !isVisible())
        return;
    const PanelFields fields = m_source->Fields();
    if (Shape(fields) != m_shape)
        Build(fields);
    for (const PanelField &field : fields)
        ShowField(field);
}

void FieldForm::slotFault(QString text)
{
    m_fault->setText(text);
    m_fault->setVisible(!text.isEmpty());
}

void FieldForm::slotSourceGone()
{
    if (m_fields)
        m_fields->setEnabled(false);
}

/// Of the field that the user is at, who goes on there when the widgets are made anew; empty without one.
QString FieldForm::FocusedKey() const
{
    for (auto widget = m_widgets.cbegin(); widget != m_widgets.cend(); ++widget) {
        const QWidget *focused = widget.value()->window()->focusWidget();
        if (focused && (focused == widget.value() || widget.value()->isAncestorOf(focused)))
            return widget.key();
    }
    return QString();
}

void FieldForm::Build(const PanelFields &fields)
{
    const QString focused = FocusedKey();
    if (m_fields) {
        m_fields->hide();
        m_fields->deleteLater(); // one of its widgets may be what asked for this
    }
    m_widgets.clear();
    m_labels.clear();
    m_form = nullptr;
    m_shape = Shape(fields);
    m_fields = new QWidget(this);
    auto *column = new QVBoxLayout(m_fields);
    column->setContentsMargins(0, 0, 0, 0);
    for (const PanelField &field : fields)
        AddField(field);
    m_column->insertWidget(0, m_fields);
    ChainTabOrder({ m_fault, m_fields }); // the label has been at the place of the form from the beginning
    if (QWidget *widget = m_widgets.value(focused)) {
        m_fields->show(); // what is not seen takes no focus
        widget->setFocus();
    }
}

void FieldForm::AddField(const PanelField &field)
{
    if (!m_form || field.group != m_group) {
        auto *box = new QGroupBox(field.group, m_fields);
        m_form = new QFormLayout(box);
        m_form->setRowWrapPolicy(QFormLayout::WrapLongRows);
        m_form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
        m_fields->layout()->addWidget(box);
        m_group = field.group;
    }
    QWidget *widget = MakeWidget(field);
    m_widgets.insert(field.key, widget);
    if (field.isBeside && m_form->rowCount() > 0) {
        QLayoutItem *last = m_form->itemAt(m_form->rowCount() - 1, QFormLayout::FieldRole);
        const bool sharesRow = field.kind == PanelField::Kind::Action;
        static_cast<QHBoxLayout *>(last->layout())->addWidget(widget, sharesRow ? 1 : 0);
        return;
    }
    if (field.kind == PanelField::Kind::Histogram)
        return m_form->addRow(widget); // as wide as the box
    auto *row = new QHBoxLayout;
    row->addWidget(widget, 1);
    const bool hasLabel = field.kind != PanelField::Kind::Check && field.kind != PanelField::Kind::Action;
    m_form->addRow(hasLabel ? WithoutMnemonic(field.text) : QString(), row);
    if (auto *label = qobject_cast<QLabel *>(m_form->labelForField(row))) { // none for an empty text
        label->setBuddy(widget);
        m_labels.insert(field.key, label);
    }
}

QWidget *FieldForm::MakeWidget(const PanelField &field)
{
    const QString key = field.key;
    switch (field.kind) {
    case PanelField::Kind::Number:
        return MakeNumber(field);
    case PanelField::Kind::Choice:
        return MakeChoice(field);
    case PanelField::Kind::Text:
        return MakeText(field);
    case PanelField::Kind::Folder:
        return MakeFolder(field);
    case PanelField::Kind::Check: {
        auto *box = new QCheckBox(WithoutMnemonic(field.text), m_fields);
        box->setObjectName(ObjectName("check", key));
        connect(box, &QCheckBox::toggled, this, [this, key](bool checked) { Send(key, checked); });
        return box;
    }
    case PanelField::Kind::Action: {
        auto *button = new QPushButton(WithoutMnemonic(field.text), m_fields);
        button->setObjectName(ObjectName("action", key));
        connect(button, &QPushButton::clicked, this, [this, key] { Send(key, QVariant()); });
        return button;
    }
    case PanelField::Kind::Colour: {
        auto *button = new ColourButton(WithoutMnemonic(field.text), m_fields);
        button->setObjectName(ObjectName("colour", key));
        connect(button, &ColourButton::signalChosen, this, [this, key](const QColor &colour) { Send(key, colour); });
        return button;
    }
    case PanelField::Kind::Histogram: {
        auto *view = new HistogramView(m_fields);
        view->setObjectName(ObjectName("histogram", key));
        view->setAccessibleName(WithoutMnemonic(field.text));
        return view;
    }
    case PanelField::Kind::Note:
        break;
    }
    auto *label = new QLabel(m_fields);
    label->setObjectName(ObjectName("note", key));
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

/// Who scrolls a panel changes nothing on the way.
void FieldForm::TakeWheelWithFocusOnly(QWidget *widget)
{
    widget->setFocusPolicy(Qt::StrongFocus);
    widget->installEventFilter(this);
}

bool FieldForm::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Wheel || static_cast<QWidget *>(watched)->hasFocus())
        return QWidget::eventFilter(watched, event);
    event->ignore(); // goes on to the area that scrolls
    return true;
}

QWidget *FieldForm::MakeNumber(const PanelField &field)
{
    auto *box = new NumberBox(m_fields);
    box->setObjectName(ObjectName("number", field.key));
    TakeWheelWithFocusOnly(box);
    connect(box, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            [this, key = field.key](double value) { Send(key, value); });
    return box;
}

QWidget *FieldForm::MakeChoice(const PanelField &field)
{
    auto *box = new QComboBox(m_fields);
    box->setObjectName(ObjectName("choice", field.key));
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    TakeWheelWithFocusOnly(box);
    connect(box, QOverload<int>::of(&QComboBox::activated), this,
            [this, key = field.key](int index) { Send(key, index); });
    return box;
}

QWidget *FieldForm::MakeText(const PanelField &field)
{
    auto *edit = new QLineEdit(m_fields);
    edit->setObjectName(ObjectName("text", field.key));
    edit->setAccessibleName(WithoutMnemonic(field.text));
    connect(edit, &QLineEdit::textEdited, this, [this, key = field.key](const QString &text) { Send(key, text); });
    connect(edit, &QLineEdit::editingFinished, this, [this, edit] {
        edit->setModified(false);
        slotUpdate();
    });
    return edit;
}

/// The line and a button that chooses; the line is the widget of the field.
QWidget *FieldForm::MakeFolder(const PanelField &field)
{
    auto *edit = static_cast<QLineEdit *>(MakeText(field));
    auto *choose = new QPushButton(tr("Choose…"), m_fields);
    choose->setObjectName(ObjectName("choose", field.key));
    const QString title = WithoutMnemonic(field.text);
    connect(choose, &QPushButton::clicked, this, [this, edit, title, key = field.key] {
        const QString folder = QFileDialog::getExistingDirectory(this, title, edit->text());
        if (!folder.isEmpty())
            Send(key, folder);
    });
    auto *both = new QWidget(m_fields);
    auto *row = new QHBoxLayout(both);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(edit, 1);
    row->addWidget(choose);
    both->setFocusProxy(edit);
    return both;
}

void FieldForm::ShowField(const PanelField &field)
{
    QWidget *widget = m_widgets.value(field.key);
    widget->setEnabled(field.isEnabled);
    widget->setToolTip(ToolTip(field));
    if (QLabel *label = m_labels.value(field.key))
        label->setText(WithoutMnemonic(field.text));
    const QSignalBlocker blocker(widget);
    switch (field.kind) {
    case PanelField::Kind::Number: {
        auto *box = static_cast<NumberBox *>(widget);
        box->setAccessibleName(WithoutMnemonic(field.text));
        SetNotation(box, field);
        box->Show(field.minimum, field.maximum, field.value.toDouble());
        break;
    }
    case PanelField::Kind::Choice: {
        auto *box = static_cast<QComboBox *>(widget);
        box->setAccessibleName(WithoutMnemonic(field.text));
        FillChoices(box, field.choices);
        box->setCurrentIndex(field.value.toInt());
        break;
    }
    case PanelField::Kind::Check:
        static_cast<QCheckBox *>(widget)->setChecked(field.value.toBool());
        break;
    case PanelField::Kind::Text:
    case PanelField::Kind::Folder: {
        auto *edit = field.kind == PanelField::Kind::Text ? static_cast<QLineEdit *>(widget)
                                                          : static_cast<QLineEdit *>(widget->focusProxy());
        ShowText(edit, field.value.toString());
        break;
    }
    case PanelField::Kind::Action:
        static_cast<QPushButton *>(widget)->setText(WithoutMnemonic(field.text));
        break;
    case PanelField::Kind::Note:
        static_cast<QLabel *>(widget)->setText(field.value.toString());
        break;
    case PanelField::Kind::Colour:
        static_cast<ColourButton *>(widget)->SetColour(field.value.value<QColor>());
        break;
    case PanelField::Kind::Histogram:
        static_cast<HistogramView *>(widget)->SetCurve(field.value.value<HistogramCurve>());
        break;
    }
}

/// Shown anew even if nothing changed: what was set may not have been taken.
void FieldForm::Send(const QString &key, const QVariant &value)
{
    if (!m_source)
        return;
    m_source->Set(key, value);
    slotUpdate();
}
