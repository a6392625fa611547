// SPDX-License-Identifier: GPL-3.0-or-later
#include "araviserror.h"

#include "camerafeature.h"

#include <QSet>

#include <algorithm>
#include <cmath>

namespace {

constexpr int DeepestCategory = 8;

ArvGcNode *Node(ArvDevice *device, const QString &name)
{
    ArvGc *tree = arv_device_get_genicam(device);
    return tree ? arv_gc_get_node(tree, name.toUtf8().constData()) : nullptr;
}

/// A description may hold any names, those of its own categories too.
void Collect(ArvDevice *device, const QString &node, const QString &category, int depth, QSet<QString> &seen,
             QVector<CameraFeatureAccess::Place> &places)
{
    ArvGcNode *const here = Node(device, node);
    if (!ARV_IS_GC_CATEGORY(here) || depth > DeepestCategory)
        return;
    for (const GSList *entry = arv_gc_category_get_features(ARV_GC_CATEGORY(here)); entry; entry = entry->next) {
        const QString name = QString::fromUtf8(static_cast<const char *>(entry->data));
        ArvGcNode *const child = Node(device, name);
        if (!ARV_IS_GC_FEATURE_NODE(child) || seen.contains(name))
            continue;
        seen.insert(name);
        if (arv_gc_feature_node_get_visibility(ARV_GC_FEATURE_NODE(child)) == ARV_GC_VISIBILITY_INVISIBLE)
            continue;
        if (!ARV_IS_GC_CATEGORY(child)) {
            places.append({category, name});
            continue;
        }
        const char *text = arv_gc_feature_node_get_display_name(ARV_GC_FEATURE_NODE(child));
        Collect(device, name, depth == 0 ? (text ? QString::fromUtf8(text) : name) : category, depth + 1, seen, places);
    }
}

QString TextOr(const char *text, const QString &otherwise)
{
    return text && *text ? QString::fromUtf8(text) : otherwise;
}

void ReadNumber(ArvGcNode *node, CameraFeature *feature)
{
    AravisError failure;
    if (ARV_IS_GC_FLOAT(node)) {
        feature->kind = CameraFeature::Kind::Float;
        feature->minimum = arv_gc_float_get_min(ARV_GC_FLOAT(node), nullptr);
        feature->maximum = arv_gc_float_get_max(ARV_GC_FLOAT(node), nullptr);
        feature->step = arv_gc_float_get_inc(ARV_GC_FLOAT(node), nullptr);
        feature->unit = TextOr(arv_gc_float_get_unit(ARV_GC_FLOAT(node)), QString());
        feature->value = arv_gc_float_get_value(ARV_GC_FLOAT(node), failure.Receive());
    } else {
        feature->kind = CameraFeature::Kind::Integer;
        feature->minimum = double(arv_gc_integer_get_min(ARV_GC_INTEGER(node), nullptr));
        feature->maximum = double(arv_gc_integer_get_max(ARV_GC_INTEGER(node), nullptr));
        feature->step = double(arv_gc_integer_get_inc(ARV_GC_INTEGER(node), nullptr));
        feature->unit = TextOr(arv_gc_integer_get_unit(ARV_GC_INTEGER(node)), QString());
        feature->value = qint64(arv_gc_integer_get_value(ARV_GC_INTEGER(node), failure.Receive()));
    }
    // What is no step at all comes as 0, as the smallest number there is, or not as a number.
    if (!(feature->step > (feature->maximum - feature->minimum) * 1e-12) || !std::isfinite(feature->step))
        feature->step = 0;
    if (failure.IsSet())
        feature->value = QVariant();
}

void ReadChoice(ArvGcNode *node, CameraFeature *feature)
{
    feature->kind = CameraFeature::Kind::Choice;
    guint count = 0;
    const char **values = arv_gc_enumeration_dup_available_string_values(ARV_GC_ENUMERATION(node), &count, nullptr);
    for (guint i = 0; values && i < count; ++i)
        feature->choices << QString::fromUtf8(values[i]);
    g_free(values);
    AravisError failure;
    const char *value = arv_gc_enumeration_get_string_value(ARV_GC_ENUMERATION(node), failure.Receive());
    if (!failure.IsSet() && value)
        feature->value = QString::fromUtf8(value);
}

} // namespace

QVector<CameraFeatureAccess::Place> CameraFeatureAccess::List(ArvDevice *device)
{
    QVector<Place> places;
    QSet<QString> seen;
    Collect(device, QStringLiteral("Root"), QString(), 0, seen, places);
    return places;
}

bool CameraFeatureAccess::Read(ArvDevice *device, const Place &place, CameraFeature *feature)
{
    ArvGcNode *const node = Node(device, place.name);
    if (!ARV_IS_GC_FEATURE_NODE(node))
        return false;
    ArvGcFeatureNode *const described = ARV_GC_FEATURE_NODE(node);
    if (!arv_gc_feature_node_is_implemented(described, nullptr) || !arv_gc_feature_node_is_available(described, nullptr))
        return false;
    *feature = CameraFeature();
    feature->name = place.name;
    feature->category = place.category;
    feature->text = TextOr(arv_gc_feature_node_get_display_name(described), place.name);
    feature->toolTip = TextOr(arv_gc_feature_node_get_description(described),
                              TextOr(arv_gc_feature_node_get_tooltip(described), QString()));
    const ArvGcVisibility visibility = arv_gc_feature_node_get_visibility(described);
    feature->isExpert = visibility == ARV_GC_VISIBILITY_EXPERT || visibility == ARV_GC_VISIBILITY_GURU;
    const ArvGcAccessMode access = arv_gc_feature_node_get_actual_access_mode(described);
    feature->isReadable = access != ARV_GC_ACCESS_MODE_WO;
    feature->isWritable = access != ARV_GC_ACCESS_MODE_RO && !arv_gc_feature_node_is_locked(described, nullptr);

    AravisError failure;
    if (ARV_IS_GC_COMMAND(node)) {
        feature->kind = CameraFeature::Kind::Command;
    } else if (ARV_IS_GC_ENUMERATION(node)) { // is an integer too
        ReadChoice(node, feature);
    } else if (ARV_IS_GC_BOOLEAN(node)) {
        feature->kind = CameraFeature::Kind::Check;
        const bool isSet = arv_gc_boolean_get_value(ARV_GC_BOOLEAN(node), failure.Receive());
        if (!failure.IsSet())
            feature->value = isSet;
    } else if (ARV_IS_GC_FLOAT(node) || ARV_IS_GC_INTEGER(node)) {
        ReadNumber(node, feature);
    } else if (ARV_IS_GC_STRING(node)) {
        const char *text = arv_gc_string_get_value(ARV_GC_STRING(node), failure.Receive());
        if (!failure.IsSet() && text)
            feature->value = QString::fromUtf8(text);
    } else {
        return false; // a register: for programs, not for people
    }
    return true;
}

double CameraFeatureAccess::Fitted(const CameraFeature &feature, double value)
{
    if (!std::isfinite(value))
        return feature.minimum;
    double fitted = std::clamp(value, feature.minimum, std::max(feature.minimum, feature.maximum));
    if (feature.step > 0)
        fitted = feature.minimum + std::floor((fitted - feature.minimum) / feature.step + 0.5) * feature.step;
    while (feature.step > 0 && fitted > feature.maximum)
        fitted -= feature.step;
    return fitted;
}

bool CameraFeatureAccess::Write(ArvDevice *device, const CameraFeature &feature, const QVariant &value, QString *error)
{
    const QByteArray name = feature.name.toUtf8();
    AravisError failure;
    switch (feature.kind) {
    case CameraFeature::Kind::Integer:
        arv_device_set_integer_feature_value(device, name, qRound64(Fitted(feature, value.toDouble())),
                                             failure.Receive());
        break;
    case CameraFeature::Kind::Float:
        arv_device_set_float_feature_value(device, name, Fitted(feature, value.toDouble()), failure.Receive());
        break;
    case CameraFeature::Kind::Check:
        arv_device_set_boolean_feature_value(device, name, value.toBool(), failure.Receive());
        break;
    case CameraFeature::Kind::Choice:
    case CameraFeature::Kind::Text:
        arv_device_set_string_feature_value(device, name, value.toString().toUtf8(), failure.Receive());
        break;
    case CameraFeature::Kind::Command:
        arv_device_execute_command(device, name, failure.Receive());
        break;
    }
    if (failure.IsSet() && error)
        *error = failure.Text();
    return !failure.IsSet();
}
