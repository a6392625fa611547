// SPDX-License-Identifier: GPL-3.0-or-later
#include "countfields.h"

#include "autocounting.h"
#include "filenametext.h"
#include "openedpicture.h"
#include "picturetrials.h"

namespace {

/// While a number is being changed step by step nothing is counted.
constexpr int DelayMs = 120;
constexpr double MostLevel = 1e12;
constexpr double MostPixelSize = 1e6;
constexpr double MostSplitDepth = 100;

QStringList Units() { return { "\u00b5m", "nm", "mm" }; }

} // namespace

CountFields::CountFields(OpenedPicture *picture, AutoCounting *counting, QObject *parent)
    : FieldSource(CountName, parent)
    , m_picture(picture)
    , m_counting(counting)
{
    m_delay.setSingleShot(true);
    m_delay.setInterval(DelayMs);
    connect(&m_delay, &QTimer::timeout, this, &CountFields::slotCount);
    connect(picture->Trials(), &PictureTrials::signalCounted, this, &CountFields::slotCounted);
    connect(picture->Trials(), &PictureTrials::signalProcessingEnded, this, &CountFields::slotEnd);
    connect(picture, &OpenedPicture::signalShown, this, &CountFields::signalChanged);
    connect(counting, &AutoCounting::signalSaved, this, &CountFields::slotSaved);
}

PanelFields CountFields::Fields() const
{
    PanelFields fields;
    AddObjects(fields);
    AddLimits(fields);
    AddResult(fields);
    return fields;
}

void CountFields::AddObjects(PanelFields &fields) const
{
    const int first = fields.size();
    const bool isFloat = IsFloat(m_picture->Shown().samples.Type());
    fields << PanelField::Make(PanelField::Kind::Check, "automatic", tr("Find the level"),
                               m_settings.isAutomatic);
    const double level =
        m_settings.isAutomatic && m_counting->IsCounting() ? m_picture->Shown().countLevel : m_settings.level;
    fields << PanelField::MakeNumber("level", tr("Level"), level, -MostLevel, MostLevel, isFloat ? 4 : 0);
    fields.last().isEnabled = !m_settings.isAutomatic;
    fields << PanelField::Make(PanelField::Kind::Check, "dark", tr("Objects are darker"),
                               m_settings.takesDark);
    fields << PanelField::Make(PanelField::Kind::Check, "fill", tr("Fill holes"), m_settings.fillsHoles);
    fields << PanelField::Make(PanelField::Kind::Check, "split", tr("Split objects that touch"),
                               m_settings.splits);
    fields << PanelField::MakeNumber("depth", tr("Waist"), m_settings.splitDepthPx, 0, MostSplitDepth, 1,
                                     tr(" px"));
    fields.last().isEnabled = m_settings.splits;
    fields.last().step = 0.5;
    fields.last().toolTip = tr("How much narrower, on each side, a waist is than the parts that it parts.");
    SetGroup(fields, first, tr("Objects"));
}

void CountFields::AddLimits(PanelFields &fields) const
{
    const int first = fields.size();
    fields << PanelField::MakeNumber("leastArea", tr("Area from"), m_settings.leastArea, 0,
                                     CountSettings::MostArea, 0, tr(" px"));
    fields << PanelField::MakeNumber("mostArea", tr("Area to"), m_settings.mostArea, 0,
                                     CountSettings::MostArea, 0, tr(" px"));
    fields << PanelField::MakeNumber("leastCircularity", tr("Circularity from"), m_settings.leastCircularity,
                                     0, 1, 2);
    fields.last().step = 0.05;
    fields.last().toolTip =
        tr("4\u03c0 area / perimeter\u00b2: 1 for a disc, less the longer or rougher an object is.");
    fields << PanelField::MakeNumber("mostCircularity", tr("Circularity to"), m_settings.mostCircularity, 0,
                                     1, 2);
    fields.last().step = 0.05;
    fields << PanelField::Make(PanelField::Kind::Check, "leaveEdge", tr("Leave out objects at the edge"),
                               m_settings.leavesOutEdge);
    SetGroup(fields, first, tr("What counts"));
}

void CountFields::AddResult(PanelFields &fields) const
{
    const int first = fields.size();
    fields << PanelField::MakeNumber("pixelSize", tr("Pixel size"), m_pixelSize, 0, MostPixelSize, 4);
    fields.last().zeroText = tr("not set");
    fields.last().toolTip =
        tr("Side of a pixel in the specimen; areas and lengths of the table are in this unit.");
    fields << PanelField::MakeChoice("unit", tr("Unit"), m_unit, Units());
    fields << PanelField::MakeNote(QString(), "result", QString(), ResultText());
    fields << PanelField::MakeAction("count", m_counting->IsCounting() ? tr("&End Counting") : tr("&Count"),
                                     !m_picture->IsNonImage());
    SetGroup(fields, first, tr("Result"));
}

QString CountFields::ResultText() const
{
    if (m_picture->IsNonImage())
        return tr("No picture is open.");
    if (!m_counting->IsCounting())
        return tr("Nothing is being counted.");
    return tr("%n object(s)", nullptr, m_counting->Table()->rowCount());
}

QAbstractItemModel *CountFields::Table() { return m_counting->Table(); }

void CountFields::Set(const QString &key, const QVariant &value)
{
    if (key == "saveTable") {
        m_counting->Save(value.toString());
        return;
    }
    if (key == "count") {
        if (m_counting->IsCounting())
            return slotEnd();
        m_counting->SetCounting(!m_picture->IsNonImage());
        slotCount();
    } else if (key == "pixelSize" || key == "unit") {
        m_pixelSize = key == "unit" ? m_pixelSize : qBound(0.0, value.toDouble(), MostPixelSize);
        m_unit = key == "unit" ? qBound(0, value.toInt(), Units().size() - 1) : m_unit;
        m_counting->Table()->SetPixelSize(m_pixelSize, Units().at(m_unit));
    } else if (SetObject(key, value) || SetLimit(key, value)) {
        m_delay.start();
    } else {
        return;
    }
    emit signalChanged();
}

/// True when the key was one of these.
bool CountFields::SetObject(const QString &key, const QVariant &value)
{
    if (key == "automatic") {
        if (!value.toBool() && m_counting->IsCounting())
            m_settings.level = m_picture->Shown().countLevel; // to begin with
        m_settings.isAutomatic = value.toBool();
    } else if (key == "level") {
        m_settings.level = qBound(-MostLevel, value.toDouble(), MostLevel);
    } else if (key == "dark") {
        m_settings.takesDark = value.toBool();
    } else if (key == "fill") {
        m_settings.fillsHoles = value.toBool();
    } else if (key == "split") {
        m_settings.splits = value.toBool();
    } else if (key == "depth") {
        m_settings.splitDepthPx = qBound(0.0, value.toDouble(), MostSplitDepth);
    } else {
        return false;
    }
    return true;
}

bool CountFields::SetLimit(const QString &key, const QVariant &value)
{
    if (key == "leastArea")
        m_settings.leastArea = qBound(0.0, value.toDouble(), CountSettings::MostArea);
    else if (key == "mostArea")
        m_settings.mostArea = qBound(0.0, value.toDouble(), CountSettings::MostArea);
    else if (key == "leastCircularity")
        m_settings.leastCircularity = qBound(0.0, value.toDouble(), 1.0);
    else if (key == "mostCircularity")
        m_settings.mostCircularity = qBound(0.0, value.toDouble(), 1.0);
    else if (key == "leaveEdge")
        m_settings.leavesOutEdge = value.toBool();
    else
        return false;
    return true;
}

void CountFields::slotCount()
{
    m_delay.stop();
    if (m_counting->IsCounting())
        m_picture->Trials()->Count(m_settings);
}

void CountFields::slotCounted()
{
    if (!m_counting->IsCounting())
        return;
    const LoadedPicture &shown = m_picture->Shown();
    emit signalFault(shown.countError);
    if (shown.countError.isEmpty())
        m_counting->SetObjects(shown.objects);
    emit signalChanged();
}

/// The objects stay in the table.
void CountFields::slotEnd()
{
    m_delay.stop();
    m_counting->SetCounting(false);
    m_picture->Trials()->Count(std::nullopt);
    emit signalFault(QString());
    emit signalChanged();
}

void CountFields::slotSaved(QString path, QString error)
{
    if (error.isEmpty())
        emit signalMessage(tr("\u201c%1\u201d was saved.").arg(FileNameTextOf(path)));
    else
        emit signalNotSaved(error);
}
