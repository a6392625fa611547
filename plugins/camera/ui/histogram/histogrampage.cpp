// SPDX-License-Identifier: GPL-3.0-or-later
#include "histogrampage.h"

#include "fieldsource.h"
#include "histogramview.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>

HistogramPage::HistogramPage(FieldSource *source, const QString &absentText, QWidget *parent)
    : QWidget(parent)
    , m_source(source)
    , m_view(new HistogramView(this))
    , m_numbers(new QFormLayout)
{
    auto *row = new QHBoxLayout(this);
    m_view->setAccessibleName(tr("Histogram of the live picture"));
    row->addWidget(m_view, 1);
    row->addLayout(m_numbers);
    if (!source) {
        m_numbers->addRow(new QLabel(absentText));
        return;
    }
    connect(source, &FieldSource::signalChanged, this, &HistogramPage::slotUpdate);
    slotUpdate();
}

void HistogramPage::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_source)
        m_source->SetWatched(true);
}

void HistogramPage::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    if (m_source)
        m_source->SetWatched(false);
}

QLabel *HistogramPage::NumberOf(const QString &key, const QString &text)
{
    QLabel *&label = m_labels[key];
    if (!label) {
        label = new QLabel(this);
        label->setObjectName("note" + key.left(1).toUpper() + key.mid(1));
        label->setMinimumWidth(
            fontMetrics().horizontalAdvance("16 bit, 0 to 65,535")); // the histogram keeps its width
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        m_numbers->addRow(text, label);
    }
    return label;
}

void HistogramPage::slotUpdate()
{
    if (!m_source)
        return;
    for (const PanelField &field : m_source->Fields()) {
        if (field.kind == PanelField::Kind::Histogram)
            m_view->SetCurve(field.value.value<HistogramCurve>());
        else if (field.kind == PanelField::Kind::Note)
            NumberOf(field.key, field.text)->setText(field.value.toString());
    }
}
