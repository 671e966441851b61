#include "U3DMesh.h"

#include <vexel/base/SbBox3f.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace {

// Contexts of what a position brings along.
constexpr std::uint32_t Number_context = 1; ///< of lines, and their shadings
constexpr std::uint32_t Signs_context = 20;
constexpr std::uint32_t First_difference_context = 21;
constexpr std::uint32_t Normals_context = 40;
constexpr std::uint32_t Normal_index_context = 45;

constexpr float Unused_step = 1.0f / 16384;

/** A power of two: all positions are multiples of it that are exact in 32 bits, and so are their differences. */
float stepFor(const std::vector<SbVec3f>& positions)
{
    SbBox3f box;
    double farthest = 0;
    for (const SbVec3f& position : positions) {
        box.extendBy(position);
        for (int i = 0; i < 3; ++i)
            farthest = std::max(farthest, double(std::abs(position[i])));
    }
    const SbVec3f& low = box.getMin();
    const SbVec3f& high = box.getMax();
    const double diagonal = std::hypot(double(high[0]) - low[0], double(high[1]) - low[1], double(high[2]) - low[2]);
    const double wanted = std::max(std::ldexp(diagonal, -21), std::ldexp(farthest, -23));
    return std::ldexp(1.0f, std::clamp(int(std::ceil(std::log2(wanted))), -126, 127));
}

U3DBytes declarationOf(const U3DLineSet& lineSet, std::size_t numLines, float step)
{
    U3DBitStream data;
    data.putU32(0); // index in the chain
    data.putU32(0);
    data.putU32(std::uint32_t(numLines));
    data.putU32(std::uint32_t(lineSet.positions.size()));
    for (int i = 0; i < 4; ++i) // normals, colours, specular colours, texture coordinates
        data.putU32(0);
    data.putU32(lineSet.numShadings);
    for (std::uint32_t i = 0; i < lineSet.numShadings; ++i) {
        data.putU32(0); // attributes
        data.putU32(0); // texture layers
        data.putU32(i);
    }
    for (int i = 0; i < 3; ++i) // quality factors
        data.putU32(0);
    data.putF32(step);
    for (int i = 0; i < 4; ++i)
        data.putF32(Unused_step);
    for (int i = 0; i < 3; ++i)
        data.putU32(0);
    data.putU32(0); // bones
    return data.finish();
}

/** Lines from lower to higher positions, in the order of the higher; of equal ones the first. */
std::vector<U3DLineSet::Line> sorted(const std::vector<U3DLineSet::Line>& given)
{
    std::vector<U3DLineSet::Line> lines;
    for (U3DLineSet::Line line : given) {
        if (line.from > line.to)
            std::swap(line.from, line.to);
        if (line.from < line.to)
            lines.push_back(line);
    }
    const auto ends = [](const U3DLineSet::Line& line) { return std::pair(line.to, line.from); };
    std::stable_sort(lines.begin(), lines.end(), [&](const auto& a, const auto& b) { return ends(a) < ends(b); });
    lines.erase(
        std::unique(lines.begin(), lines.end(), [&](const auto& a, const auto& b) { return ends(a) == ends(b); }),
        lines.end());
    return lines;
}

class Encoder {
public:
    Encoder(const U3DLineSet& lineSet, float step, U3DProgress& progress)
        : m_lineSet(lineSet), m_step(step), m_progress(progress)
    {
    }

    U3DBytes encode(const std::vector<U3DLineSet::Line>& lines)
    {
        const auto numPositions = std::uint32_t(m_lineSet.positions.size());
        m_data.putU32(0); // index in the chain
        m_data.putU32(0);
        m_data.putU32(numPositions);
        auto line = lines.begin();
        for (std::uint32_t i = 0; i < numPositions && m_progress.goesOn(i, numPositions, 0.5, 1); ++i) {
            putPosition(i);
            const auto end = std::find_if(line, lines.end(), [&](const auto& other) { return other.to != i; });
            m_data.putDynamic(Number_context, std::uint32_t(end - line));
            for (std::uint32_t number = 0; line != end; ++line, number += 2) {
                m_data.putDynamic(Number_context, line->shading);
                m_data.putBelow(std::max(i, 1u), line->from);
                m_data.putDynamic(Normal_index_context, number);
                m_data.putDynamic(Normal_index_context, number + 1);
            }
        }
        return m_data.finish();
    }

private:
    /** As the difference from the position before. */
    void putPosition(std::uint32_t i)
    {
        m_data.putBelow(std::max(i, 1u), i > 0 ? i - 1 : 0);
        std::uint8_t signs = 0;
        std::array<std::uint32_t, 3> differences;
        for (int k = 0; k < 3; ++k) {
            const long multiple = std::lround(double(m_lineSet.positions[i][k]) / double(m_step));
            const long difference = multiple - m_last[std::size_t(k)];
            m_last[std::size_t(k)] = multiple;
            if (difference < 0)
                signs |= std::uint8_t(1u << k);
            differences[std::size_t(k)] = std::uint32_t(std::abs(difference));
        }
        m_data.putDynamicU8(Signs_context, signs);
        for (std::uint32_t k = 0; k < 3; ++k)
            m_data.putDynamic(First_difference_context + k, differences[k]);
        m_data.putDynamic(Normals_context, 0);
    }

    const U3DLineSet& m_lineSet;
    float m_step;
    U3DProgress& m_progress;
    std::array<long, 3> m_last{};
    U3DBitStream m_data;
};

} // namespace

U3DModelResource encodeU3DLineSet(const U3DLineSet& lineSet, U3DProgress& progress)
{
    const float step = stepFor(lineSet.positions);
    const std::vector<U3DLineSet::Line> lines = sorted(lineSet.lines);
    return {declarationOf(lineSet, lines.size(), step), Encoder(lineSet, step, progress).encode(lines)};
}
