// SPDX-License-Identifier: GPL-3.0-or-later
#include "camerafeaturetree.h"

#include <QLocale>
#include <QStandardItemModel>

#include <cmath>

namespace {

constexpr int NameRole = FeatureTree::SearchRole + 1;
constexpr int MostDecimals = 6;

FeatureTree::Editor EditorOf(const CameraFeature &feature)
{
    if (!feature.isWritable || CameraFeatures::IsSetElsewhere(feature.name))
        return FeatureTree::Editor::None;
    switch (feature.kind) {
    case CameraFeature::Kind::Integer:
    case CameraFeature::Kind::Float:
        return FeatureTree::Editor::Number;
    case CameraFeature::Kind::Choice:
        return FeatureTree::Editor::Choice;
    case CameraFeature::Kind::Check:
        return FeatureTree::Editor::Check;
    case CameraFeature::Kind::Text:
        return FeatureTree::Editor::Text;
    case CameraFeature::Kind::Command:
        return FeatureTree::Editor::Command;
    }
    return FeatureTree::Editor::None;
}

QString WithUnit(const QString &number, const CameraFeature &feature)
{
    return feature.unit.isEmpty() ? number : number + ' ' + feature.unit;
}

QString NumberText(const CameraFeature &feature, double value)
{
    return feature.kind == CameraFeature::Kind::Integer ? QString::number(qRound64(value))
                                                        : QLocale().toString(value, 'g', 7);
}

QString ValueText(const CameraFeature &feature)
{
    if (feature.kind == CameraFeature::Kind::Command)
        return CameraFeatureTree::tr("Do");
    if (!feature.value.isValid())
        return CameraFeatureTree::tr("not readable");
    if (feature.kind == CameraFeature::Kind::Check)
        return feature.value.toBool() ? CameraFeatureTree::tr("on") : CameraFeatureTree::tr("off");
    if (feature.kind == CameraFeature::Kind::Integer || feature.kind == CameraFeature::Kind::Float)
        return WithUnit(NumberText(feature, feature.value.toDouble()), feature);
    return feature.value.toString();
}

QString ToolTip(const CameraFeature &feature)
{
    QStringList lines{feature.name};
    if (!feature.toolTip.isEmpty() && feature.toolTip != feature.name)
        lines << feature.toolTip;
    const bool isNumber = feature.kind == CameraFeature::Kind::Integer || feature.kind == CameraFeature::Kind::Float;
    if (isNumber && feature.isWritable && feature.maximum > feature.minimum)
        lines << CameraFeatureTree::tr("%1 to %2").arg(NumberText(feature, feature.minimum),
                                                        WithUnit(NumberText(feature, feature.maximum), feature));
    if (CameraFeatures::IsSetElsewhere(feature.name))
        lines << CameraFeatureTree::tr("Set in the panel Camera.");
    else if (!feature.isWritable)
        lines << CameraFeatureTree::tr("The camera does not let it be changed now.");
    return lines.join('\n');
}

QStringList Names(const QVector<CameraFeature> &features)
{
    QStringList names;
    for (const CameraFeature &feature : features)
        names << feature.category + '/' + feature.name;
    return names;
}

QStandardItem *NewItem(const QString &text)
{
    auto *item = new QStandardItem(text);
    item->setEditable(false);
    return item;
}

} // namespace

CameraFeatureTree::CameraFeatureTree(CameraLink *link, QObject *parent)
    : FeatureTree(parent)
    , m_source(link)
    , m_model(new QStandardItemModel(0, ColumnCount, this))
{
    m_model->setHorizontalHeaderLabels({tr("Feature"), tr("Value")});
    connect(&m_source, &CameraFeatures::signalRead, this, &CameraFeatureTree::slotRead);
    connect(&m_source, &CameraFeatures::signalFault, this, &FeatureTree::signalFault);
}

QAbstractItemModel *CameraFeatureTree::Model() const
{
    return m_model;
}

void CameraFeatureTree::SetWatched(bool watched)
{
    m_source.SetWatched(watched);
}

void CameraFeatureTree::Set(const QModelIndex &index, const QVariant &value)
{
    const QString name = index.data(NameRole).toString();
    for (const CameraFeature &feature : qAsConst(m_features)) {
        if (feature.name == name)
            return m_source.Set(feature, value);
    }
}

void CameraFeatureTree::slotRead(QVector<CameraFeature> features)
{
    const bool isSame = Names(features) == Names(m_features);
    m_features = features;
    if (!isSame)
        Build();
    for (const CameraFeature &feature : qAsConst(m_features)) {
        QStandardItem *value = m_values.value(feature.name);
        ShowFeature(feature, value->parent()->child(value->row(), TextColumn), value);
    }
}

void CameraFeatureTree::Build()
{
    m_model->removeRows(0, m_model->rowCount());
    m_values.clear();
    QHash<QString, QStandardItem *> categories;
    for (const CameraFeature &feature : qAsConst(m_features)) {
        QStandardItem *&category = categories[feature.category];
        if (!category) {
            category = NewItem(feature.category.isEmpty() ? tr("Camera") : feature.category);
            m_model->appendRow({category, NewItem(QString())});
        }
        QStandardItem *value = NewItem(QString());
        category->appendRow({NewItem(feature.text), value});
        m_values.insert(feature.name, value);
    }
}

void CameraFeatureTree::ShowFeature(const CameraFeature &feature, QStandardItem *text, QStandardItem *value) const
{
    const Editor editor = EditorOf(feature);
    const QString toolTip = ToolTip(feature);
    const QString search = feature.text + ' ' + feature.name + ' ' + feature.toolTip;
    for (QStandardItem *item : {text, value}) {
        item->setToolTip(toolTip);
        item->setData(feature.isExpert, ExpertRole);
        item->setData(search, SearchRole);
        item->setData(feature.name, NameRole);
    }
    value->setText(ValueText(feature));
    value->setData(int(editor), EditorRole);
    value->setEditable(editor != Editor::None);
    value->setEnabled(editor != Editor::None);
    value->setData(feature.minimum, MinimumRole);
    value->setData(feature.maximum, MaximumRole);
    value->setData(feature.step, StepRole);
    value->setData(feature.kind == CameraFeature::Kind::Float ? MostDecimals : 0, DecimalsRole);
    value->setData(feature.choices, ChoicesRole);
    value->setData(feature.value, ValueRole);
}
