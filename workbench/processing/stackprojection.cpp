// SPDX-License-Identifier: GPL-3.0-or-later
#include "stackprojection.h"

#include "availablememory.h"
#include "limitedsample.h"
#include "processing.h"
#include "samplebinning.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

constexpr double NoNumber = std::numeric_limits<double>::quiet_NaN();

/// What a method keeps of the samples of one place, one after the other.
class Extreme
{
public:
    explicit Extreme(bool wantsLargest = true)
        : m_wantsLargest(wantsLargest)
    {
    }
    void Add(double value)
    {
        if (!(m_wantsLargest ? value <= m_value : value >= m_value)) // also when there is none yet
            m_value = value;
    }
    double Result() const { return m_value; }

private:
    double m_value = NoNumber;
    bool m_wantsLargest;
};

/// Welford's way, which loses no digits when the samples differ little.
class Deviation
{
public:
    void Add(double value)
    {
        ++m_count;
        const double difference = value - m_mean;
        m_mean += difference / m_count;
        m_squares += difference * (value - m_mean);
    }
    double Result() const
    {
        if (m_count == 0)
            return NoNumber;
        return m_count > 1 ? std::sqrt(m_squares / (m_count - 1)) : 0;
    }

private:
    double m_mean = 0;
    double m_squares = 0;
    int m_count = 0;
};

class Total
{
public:
    explicit Total(bool isMean)
        : m_isMean(isMean)
    {
    }
    void Add(double value)
    {
        m_sum += value;
        ++m_count;
    }
    double Result() const
    {
        if (m_count == 0)
            return NoNumber;
        return m_isMean ? m_sum / m_count : m_sum;
    }

private:
    double m_sum = 0;
    int m_count = 0;
    bool m_isMean;
};

double MedianOf(std::vector<double> &values)
{
    if (values.empty())
        return NoNumber;
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    if (values.size() % 2 == 1)
        return *middle;
    const double before = *std::max_element(values.begin(), middle);
    return before + (*middle - before) / 2;
}

/// Reads the frames of one projection and sees to it that they fit each other.
class Frames
{
public:
    Frames(int count, const FrameReader &read, const IsUnwanted &isUnwanted, QString &error)
        : m_count(count)
        , m_read(read)
        , m_isUnwanted(isUnwanted)
        , m_error(error)
    {
    }

    /// The first frame tells the shape.
    bool Begin() { return Read(0); }
    const Picture &Current() const { return m_frame; }
    int Count() const { return m_count; }
    bool Read(int index)
    {
        if (m_isUnwanted())
            return false;
        if (!m_read(index, m_frame, m_error))
            return false;
        if (m_size.isEmpty()) {
            m_size = m_frame.Size();
            m_channels = m_frame.Channels();
            m_type = m_frame.Type();
        }
        if (m_frame.Size() == m_size && m_frame.Channels() == m_channels && m_frame.Type() == m_type)
            return true;
        m_error = QCoreApplication::translate("StackProjection",
                                              "Picture %1 is not like the first one: it needs the same size, as many "
                                              "colours and samples of the same kind.")
                      .arg(index + 1);
        return false;
    }

private:
    const int m_count;
    const FrameReader &m_read;
    const IsUnwanted &m_isUnwanted;
    QString &m_error;
    Picture m_frame;
    QSize m_size;
    int m_channels = 0;
    SampleType m_type = SampleType::U8;
};

Picture ResultFor(const Picture &frame, const ProjectionSettings &settings)
{
    return Picture(frame.Width(), frame.Height(), frame.Channels(), ProjectedType(frame.Type(), settings));
}

template <typename Keeper>
Picture OneByOne(const ProjectionSettings &settings, Frames &frames, const Keeper &empty, QString &error)
{
    const Picture &first = frames.Current();
    const qint64 samples = qint64(first.Width()) * first.Height() * first.Channels();
    error = MemoryFault(samples * qint64(sizeof(Keeper) + sizeof(double)), AvailableMemory());
    if (!error.isEmpty())
        return Picture();
    Picture result = ResultFor(first, settings);
    std::vector<Keeper> kept(size_t(samples), empty);
    for (int index = 0; index < frames.Count(); ++index) {
        if (index > 0 && !frames.Read(index))
            return Picture();
        const Picture &frame = frames.Current();
        VisitSampleType(frame.Type(), [&](auto type) {
            const auto *samples = reinterpret_cast<const decltype(type) *>(frame.Data());
            for (size_t i = 0; i < kept.size(); ++i) {
                if (std::isfinite(double(samples[i])))
                    kept[i].Add(double(samples[i]));
            }
        });
    }
    VisitSampleType(result.Type(), [&](auto type) {
        using Sample = decltype(type);
        Sample *samples = result.Samples<Sample>(0);
        for (size_t i = 0; i < kept.size(); ++i)
            samples[i] = LimitedSample<Sample>(kept[i].Result());
    });
    return result;
}

/// Medians of the rows that were gathered: those of frame 0, then of frame 1 and so on.
void StoreMedians(const std::vector<uchar> &gathered, SampleType from, int frames, int firstRow, int rows,
                  Picture &result)
{
    const size_t samples = size_t(rows) * size_t(result.Width()) * size_t(result.Channels());
    std::vector<double> values;
    values.reserve(size_t(frames));
    VisitSampleType(from, [&](auto fromType) {
        const auto *all = reinterpret_cast<const decltype(fromType) *>(gathered.data());
        VisitSampleType(result.Type(), [&](auto type) {
            using Sample = decltype(type);
            for (size_t i = 0; i < samples; ++i) {
                values.clear();
                for (size_t frame = 0; frame < size_t(frames); ++frame) {
                    const double value = double(all[frame * samples + i]);
                    if (std::isfinite(value))
                        values.push_back(value);
                }
                result.Samples<Sample>(firstRow)[i] = LimitedSample<Sample>(MedianOf(values));
            }
        });
    });
}

Picture Medians(const ProjectionSettings &settings, Frames &frames, qint64 mostBytes)
{
    Picture result = ResultFor(frames.Current(), settings);
    const SampleType type = frames.Current().Type();
    const qint64 rowBytes = frames.Current().BytesPerRow();
    const int rowsAtOnce = int(qBound(qint64(1), mostBytes / (rowBytes * frames.Count()), qint64(result.Height())));
    std::vector<uchar> gathered;
    for (int firstRow = 0; firstRow < result.Height(); firstRow += rowsAtOnce) {
        const int rows = qMin(rowsAtOnce, result.Height() - firstRow);
        gathered.resize(size_t(rowBytes) * size_t(rows) * size_t(frames.Count()));
        auto place = gathered.begin();
        for (int index = 0; index < frames.Count(); ++index) {
            if (!frames.Read(index))
                return Picture();
            place = std::copy_n(frames.Current().Row(firstRow), rowBytes * rows, place);
        }
        StoreMedians(gathered, type, frames.Count(), firstRow, rows, result);
    }
    return result;
}

SampleType FloatTypeFor(SampleType type)
{
    return BytesPerSample(type) <= 2 || type == SampleType::F32 ? SampleType::F32 : SampleType::F64;
}

} // namespace

SampleType ProjectedType(SampleType type, const ProjectionSettings &settings)
{
    switch (settings.method) {
    case ProjectionSettings::Method::Mean:
    case ProjectionSettings::Method::Median:
        return settings.keepsFractions ? FloatTypeFor(type) : type;
    case ProjectionSettings::Method::Sum:
        return SumType(type);
    case ProjectionSettings::Method::StandardDeviation:
        return FloatTypeFor(type);
    default:
        return type;
    }
}

Picture Projected(const ProjectionSettings &settings, int frames, const FrameReader &read,
                  const IsUnwanted &isUnwanted, QString &error, qint64 medianBytes)
{
    if (frames < 1) {
        error = QCoreApplication::translate("StackProjection", "There is no picture that could be projected.");
        return Picture();
    }
    Frames source(frames, read, isUnwanted, error);
    if (!source.Begin())
        return Picture();
    switch (settings.method) {
    case ProjectionSettings::Method::Maximum:
        return OneByOne(settings, source, Extreme(true), error);
    case ProjectionSettings::Method::Minimum:
        return OneByOne(settings, source, Extreme(false), error);
    case ProjectionSettings::Method::Mean:
        return OneByOne(settings, source, Total(true), error);
    case ProjectionSettings::Method::Sum:
        return OneByOne(settings, source, Total(false), error);
    case ProjectionSettings::Method::StandardDeviation:
        return OneByOne(settings, source, Deviation(), error);
    case ProjectionSettings::Method::Median:
        break;
    }
    return Medians(settings, source, medianBytes);
}
