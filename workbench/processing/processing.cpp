// SPDX-License-Identifier: GPL-3.0-or-later
#include "processing.h"

#include "availablememory.h"
#include "background.h"
#include "bandpass.h"
#include "flatfield.h"
#include "morphology.h"
#include "opencvcall.h"
#include "samplebinning.h"
#include "smoothing.h"
#include "thresholding.h"

#include <QCoreApplication>
#include <QLocale>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Processing)
};

class Step
{
public:
    Step(const Picture &picture, const ReferenceReader &readReference, const IsUnwanted &isUnwanted, QString &error)
        : m_picture(picture)
        , m_readReference(readReference)
        , m_isUnwanted(isUnwanted)
        , m_error(error)
    {
    }

    Picture operator()(const std::monostate &) const { return m_picture; }
    Picture operator()(const BackgroundSettings &settings) const { return WithoutBackground(m_picture, settings); }
    Picture operator()(const FlatFieldSettings &settings) const
    {
        if (settings.reference.isEmpty()) {
            m_error = Text::tr("Choose a reference: a picture of an evenly lit field.");
            return Picture();
        }
        Picture reference;
        if (!m_readReference(settings.reference, reference, m_error))
            return Picture();
        return FlatFielded(m_picture, reference, m_error);
    }
    Picture operator()(const DenoiseSettings &settings) const { return Denoised(m_picture, settings); }
    Picture operator()(const SharpenSettings &settings) const { return Sharpened(m_picture, settings); }
    Picture operator()(const ThresholdSettings &settings) const { return Thresholded(m_picture, settings); }
    Picture operator()(const MorphologySettings &settings) const { return Morphed(m_picture, settings); }
    Picture operator()(const BinningSettings &settings) const { return BinnedBy(m_picture, settings, m_error); }
    Picture operator()(const BandPassSettings &settings) const { return BandPassed(m_picture, settings); }
    Picture operator()(const ProjectionSettings &) const { return m_picture; } // of one frame
    Picture operator()(const MergeSettings &settings) const
    {
        if (settings.others.isEmpty()) {
            m_error = Text::tr("Check the other pictures to merge in the list of opened pictures.");
            return Picture();
        }
        const auto read = [&](int index, Picture &frame, QString &error) {
            frame = m_picture;
            return index == 0 || m_readReference(settings.others.at(index - 1), frame, error);
        };
        return Projected(settings.projection, settings.others.size() + 1, read, m_isUnwanted, m_error);
    }

private:
    const Picture &m_picture;
    const ReferenceReader &m_readReference;
    const IsUnwanted &m_isUnwanted;
    QString &m_error;
};

} // namespace

Picture Processed(const Picture &picture, const ProcessSettings &settings, const ReferenceReader &readReference,
                  const IsUnwanted &isUnwanted, QString &error)
{
    if (picture.Size().isEmpty()) {
        error = Text::tr("There is no picture that could be processed.");
        return Picture();
    }
    error = MemoryFault(WorkingBytes(picture, settings), AvailableMemory());
    if (!error.isEmpty())
        return Picture();
    Picture result;
    QString fault;
    CallOpenCv(fault, [&] { result = std::visit(Step(picture, readReference, isUnwanted, error), settings); });
    if (!fault.isEmpty())
        error = Text::tr("The picture could not be processed: %1.").arg(fault);
    return result;
}

bool IsProjection(const ProcessSettings &settings) { return std::holds_alternative<ProjectionSettings>(settings); }

QSize ProcessedSize(const QSize &size, const ProcessSettings &settings)
{
    const auto *binning = std::get_if<BinningSettings>(&settings);
    return binning ? BinnedSize(size, *binning) : size;
}

int PixelsJoined(const ProcessSettings &settings)
{
    const auto *binning = std::get_if<BinningSettings>(&settings);
    return binning ? BinningSide(*binning) : 1;
}

qint64 WorkingBytes(const Picture &picture, const ProcessSettings &settings)
{
    constexpr int planes = 4; // the values, their result and what the filters keep in between
    constexpr int mirrored = 4; // of twice the sides
    const qint64 plane = qint64(picture.Width()) * picture.Height() * qint64(sizeof(double));
    const bool isBandPass = std::holds_alternative<BandPassSettings>(settings);
    return picture.ByteCount() + plane * (isBandPass ? planes + 2 * mirrored : planes);
}

QString MemoryFault(qint64 wantedBytes, qint64 availableBytes)
{
    if (availableBytes < 0 || wantedBytes <= availableBytes)
        return QString();
    return Text::tr("This needs %1 of memory, and %2 is free. Close other pictures or programs.")
        .arg(QLocale().formattedDataSize(wantedBytes), QLocale().formattedDataSize(availableBytes));
}
