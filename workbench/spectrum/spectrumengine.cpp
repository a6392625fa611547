// SPDX-License-Identifier: GPL-3.0-or-later
#include "spectrumengine.h"

#include "pixelmove.h"
#include "rowbinning.h"

namespace {

/// Measuring lines takes as long as binning ten frames; the eye that turns a screw needs some a second.
constexpr int picturesPerFocus = 5;
constexpr int mostFocusLines = 6;

int CrossSize(const SampleView &picture, bool isHorizontal) { return isHorizontal ? picture.height : picture.width; }

BinnedLine LineOf(const SampleView &picture, const RowBand &band, bool isHorizontal)
{
    BinnedLine line;
    if (isHorizontal)
        BinRows(picture, band.top, band.bottom, &line);
    else
        BinColumns(picture, band.top, band.bottom, &line);
    return line;
}

/// Rows become columns; `memory` holds the pixels.
SampleView Transposed(const SampleView &picture, std::vector<uchar> *memory)
{
    const int bytesPerPixel = (picture.isColour ? 3 : 1) * (picture.Has16BitSamples() ? 2 : 1);
    SampleView turned = picture;
    turned.width = picture.height;
    turned.height = picture.width;
    turned.strideBytes = turned.width * bytesPerPixel;
    memory->resize(size_t(turned.height) * size_t(turned.strideBytes));
    MovePixels({picture.samples, QSize(picture.width, picture.height), picture.strideBytes, bytesPerPixel}, Orientation(true, 3),
               memory->data(), turned.strideBytes);
    turned.samples = memory->data();
    return turned;
}

/// Where the lines lie in the picture: they are level then, 90 degrees from upright.
void TransposeBack(std::vector<LineFocus> *lines)
{
    for (LineFocus &line : *lines) {
        line.area = QRect(line.area.y(), line.area.x(), line.area.height(), line.area.width());
        line.tiltDegrees = 90 - line.tiltDegrees;
    }
}

} // namespace

std::vector<double> CrossProfile(const SampleView &picture, bool isHorizontal)
{
    BinnedLine line;
    if (isHorizontal)
        BinColumns(picture, 0, picture.width, &line);
    else
        BinRows(picture, 0, picture.height, &line);
    return std::vector<double>(line.sums.begin(), line.sums.end());
}

void SpectrumEngine::FindBandAgain()
{
    m_isBandKnown = false;
    m_isBandTold = false;
}

void SpectrumEngine::TakeBack(quint64 frameId)
{
    m_corrections.TakeBack(frameId);
    for (SpectrumCorrections &corrections : m_trackCorrections)
        corrections.TakeBack(frameId);
    m_untilFocus = 0;
}

void SpectrumEngine::SetRecipe(const SpectrumRecipe &recipe)
{
    if (recipe.rows != m_recipe.rows || recipe.isHorizontal != m_recipe.isHorizontal || recipe.isBinning != m_recipe.isBinning)
        FindBandAgain();
    // What was averaged may be of long ago.
    if (recipe.isBinning != m_recipe.isBinning)
        m_corrections.Restart();
    if (recipe.hasTracks != m_recipe.hasTracks)
        m_trackCorrections.clear();
    m_recipe = recipe;
    m_corrections.SetSettings(recipe.corrections);
    m_trackCorrections.resize(recipe.tracks.size());
    // Dark and reference are those of the binned spectrum.
    CorrectionSettings ofTracks = recipe.corrections;
    ofTracks.subtractsDark = false;
    ofTracks.subtractsReference = false;
    ofTracks.quantity = SpectrumQuantity::Counts;
    for (SpectrumCorrections &corrections : m_trackCorrections)
        corrections.SetSettings(ofTracks);
}

SpectrumProduct SpectrumEngine::Make(const SampleView &picture, quint64 frameId, const SensorFrame &sensor, const QString &camera)
{
    SpectrumProduct product;
    product.frameId = frameId;
    product.frameSize = QSize(picture.width, picture.height);
    product.sensor = sensor;
    product.camera = camera;
    if (product.frameSize != m_size || sensor != m_sensor || camera != m_camera) {
        m_size = product.frameSize;
        m_sensor = sensor;
        m_camera = camera;
        FindBandAgain();
    }
    if (m_recipe.isBinning)
        Bin(picture, &product);
    if (m_recipe.hasTracks)
        BinTracks(picture, &product);
    if (m_recipe.isFocusing)
        MeasureFocus(picture, &product);
    return product;
}

void SpectrumEngine::Bin(const SampleView &picture, SpectrumProduct *product)
{
    if (!m_isBandKnown)
        m_isBandKnown = UpdateBand(picture);
    if (m_recipe.rows == BinnedRows::Manual) {
        m_band.top = std::min(m_recipe.top, m_recipe.bottom);
        m_band.bottom = std::min(std::max(m_recipe.top, m_recipe.bottom) + 1, CrossSize(picture, m_recipe.isHorizontal));
        if (m_band.bottom <= m_band.top)
            return; // the picture became smaller, which the settings are about to be told
    }
    product->band = m_band;
    product->isBandNew = m_isBandNew;
    m_isBandNew = false;
    product->raw = SpectrumOf(picture, m_band, m_recipe.isHorizontal, product->frameId);
    product->corrected = m_corrections.Apply(product->raw);
    product->averaged = m_corrections.Averaged();
    product->corrections = m_corrections.Applied();
}

Spectrum SpectrumEngine::SpectrumOf(const SampleView &picture, const RowBand &band, bool isHorizontal, quint64 frameId) const
{
    const BinnedLine line = LineOf(picture, band, isHorizontal);
    const SpectrumPlace place{m_size, m_sensor, isHorizontal, band.top, band.bottom, m_camera, picture.bitDepth, picture.isColour};
    return {std::vector<double>(line.sums.begin(), line.sums.end()), line.saturated, frameId, place, {}, m_exposureUs};
}

bool SpectrumEngine::UpdateBand(const SampleView &picture)
{
    RowBand brightest;
    brightest.bottom = CrossSize(picture, m_recipe.isHorizontal);
    std::vector<RowBand> bands;
    if (m_recipe.rows == BinnedRows::Auto)
        bands = FindBands(CrossProfile(picture, m_recipe.isHorizontal));
    for (const RowBand &band : bands) {
        if (band.light > brightest.light)
            brightest = band;
    }
    m_isBandNew = !m_isBandTold || brightest.top != m_band.top || brightest.bottom != m_band.bottom;
    m_isBandTold = true;
    m_band = brightest;
    return m_recipe.rows != BinnedRows::Auto || !bands.empty();
}

void SpectrumEngine::BinTracks(const SampleView &picture, SpectrumProduct *product)
{
    for (size_t track = 0; track < m_recipe.tracks.size(); ++track) {
        // The plots show every track along the rows.
        const Spectrum raw = SpectrumOf(picture, m_recipe.tracks[track], true, product->frameId);
        product->tracks.push_back(m_trackCorrections[track].Apply(raw));
        product->trackBands.push_back(m_recipe.tracks[track]);
    }
    if (m_recipe.isBinning || m_trackCorrections.empty())
        return;
    product->corrections = m_trackCorrections.front().Applied();
    product->corrections.wanted = m_recipe.corrections;
    product->corrections.isTrack = true;
}

void SpectrumEngine::MeasureFocus(const SampleView &picture, SpectrumProduct *product)
{
    if (m_untilFocus-- > 0)
        return;
    m_untilFocus = picturesPerFocus - 1;
    const SampleView alongRows = m_recipe.isHorizontal ? picture : Transposed(picture, &m_transposed);
    RowBand brightest;
    brightest.bottom = alongRows.height;
    for (const RowBand &band : FindBands(CrossProfile(alongRows, true))) {
        if (band.light > brightest.light)
            brightest = band;
    }
    product->lines = MeasureLines(alongRows, brightest.top, brightest.bottom, mostFocusLines);
    if (!m_recipe.isHorizontal)
        TransposeBack(&product->lines);
    product->areLinesNew = true;
}
