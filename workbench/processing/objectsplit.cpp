// SPDX-License-Identifier: GPL-3.0-or-later
#include "objectsplit.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <vector>

namespace {

/// Lakes that grow and flow together; each is named by the number of one of its pixels' lakes.
class Lakes
{
public:
    int Add(float depth)
    {
        m_parents.push_back(int(m_parents.size()));
        m_depths.push_back(depth);
        return m_parents.back();
    }
    int Root(int lake)
    {
        while (m_parents[size_t(lake)] != lake) {
            m_parents[size_t(lake)] = m_parents[size_t(m_parents[size_t(lake)])];
            lake = m_parents[size_t(lake)];
        }
        return lake;
    }
    float Depth(int root) const { return m_depths[size_t(root)]; }
    /// The deeper one, or else the elder, keeps its name.
    int Join(int one, int other)
    {
        const bool keepsOne = Depth(one) != Depth(other) ? Depth(one) > Depth(other) : one < other;
        const int stays = keepsOne ? one : other;
        m_parents[size_t(keepsOne ? other : one)] = stays;
        return stays;
    }

private:
    std::vector<int> m_parents;
    std::vector<float> m_depths; ///< of the deepest pixel of a root
};

constexpr int Dry = -1; ///< one below the first lake

class Flood
{
public:
    Flood(const cv::Mat &depths, float least)
        : m_depths(depths)
        , m_least(least)
        , m_lakeOf(depths.size(), CV_32S, cv::Scalar(Dry))
    {
    }

    void Wet(int index)
    {
        const int x = index % m_depths.cols;
        const int y = index / m_depths.cols;
        const float depth = m_depths.at<float>(y, x);
        int steepest = Dry; // the neighbour that is deepest
        float deepest = -1;
        int around[8];
        int count = 0;
        for (int row = std::max(0, y - 1); row <= std::min(m_depths.rows - 1, y + 1); ++row) {
            for (int column = std::max(0, x - 1); column <= std::min(m_depths.cols - 1, x + 1); ++column) {
                const int lake = m_lakeOf.at<int>(row, column);
                if (lake == Dry)
                    continue;
                around[count++] = lake;
                if (m_depths.at<float>(row, column) > deepest) {
                    deepest = m_depths.at<float>(row, column);
                    steepest = lake;
                }
            }
        }
        if (count == 0)
            steepest = m_lakes.Add(depth);
        m_lakeOf.at<int>(y, x) = steepest;
        for (int i = 0; i < count; ++i)
            Meet(m_lakes.Root(steepest), m_lakes.Root(around[i]), depth);
    }

    int LakeAt(int x, int y)
    {
        const int lake = m_lakeOf.at<int>(y, x);
        return lake == Dry ? Dry : m_lakes.Root(lake);
    }

private:
    void Meet(int one, int other, float depth)
    {
        if (one != other && std::min(m_lakes.Depth(one), m_lakes.Depth(other)) - depth <= m_least)
            m_lakes.Join(one, other);
    }

    const cv::Mat &m_depths;
    const float m_least;
    cv::Mat m_lakeOf;
    Lakes m_lakes;
};

} // namespace

cv::Mat SplitObjects(const cv::Mat &mask, double depthPx)
{
    cv::Mat depths;
    cv::distanceTransform(mask, depths, cv::DIST_L2, cv::DIST_MASK_PRECISE);
    std::vector<int> pixels;
    for (int i = 0; i < int(mask.total()); ++i) {
        if (mask.data[i])
            pixels.push_back(i);
    }
    const auto *depthOf = depths.ptr<float>();
    std::stable_sort(pixels.begin(), pixels.end(),
                     [&](int one, int other) { return depthOf[one] > depthOf[other]; });
    Flood flood(depths, float(depthPx));
    for (const int pixel : pixels)
        flood.Wet(pixel);

    cv::Mat labels(mask.size(), CV_32S);
    for (int y = 0; y < labels.rows; ++y) {
        for (int x = 0; x < labels.cols; ++x)
            labels.at<int>(y, x) = flood.LakeAt(x, y) + 1;
    }
    return labels;
}
