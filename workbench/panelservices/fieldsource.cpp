// SPDX-License-Identifier: GPL-3.0-or-later
#include "fieldsource.h"

const char FieldSource::CameraName[] = "camera";
const char FieldSource::AcquisitionName[] = "acquisition";
const char FieldSource::CameraAdjustmentName[] = "cameraadjustment";
const char FieldSource::ImageAdjustmentName[] = "imageadjustment";
const char FieldSource::ProcessName[] = "process";
const char FieldSource::CountName[] = "count";
const char FieldSource::HistogramName[] = "histogram";
const char FieldSource::AnalysisName[] = "analysis";
const char FieldSource::ToolName[] = "tool";
const char FieldSource::ReportName[] = "report";
const char FieldSource::SpectrumName[] = "spectrum";
const char FieldSource::ClassCountName[] = "classcount";
const char FieldSource::CalibrationName[] = "calibration";

namespace {

QVector<FieldSource *> &Sources()
{
    static QVector<FieldSource *> sources;
    return sources;
}

} // namespace

FieldSource::FieldSource(const QString &name, QObject *parent)
    : QObject(parent)
    , m_name(name)
{
    Sources().append(this);
}

FieldSource::~FieldSource()
{
    Sources().removeOne(this);
}

FieldSource *FieldSource::Find(const QString &name)
{
    for (int i = Sources().size() - 1; i >= 0; --i) {
        if (Sources().at(i)->Name() == name)
            return Sources().at(i);
    }
    return nullptr;
}
