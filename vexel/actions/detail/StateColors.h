#pragma once

#include <algorithm>
#include <cstdint>

#include <vexel/base/SbColor.h>
#include <vexel/state/SoState.h>

namespace vexel {

/** Diffuse colour and opacity of the material number @p index: red in the lowest byte, alpha in the highest. */
inline std::uint32_t stateColor(const SoStateValues& values, int index)
{
    if (!values.packedColor.isEmpty())
        return __builtin_bswap32(values.packedColor.at(index));
    const auto byte = [](float value) { return std::uint32_t(std::clamp(value, 0.0f, 1.0f) * 255 + 0.5f); };
    const SbColor& color = values.diffuseColor.at(index);
    return byte(color[0]) | byte(color[1]) << 8 | byte(color[2]) << 16 | byte(1 - values.transparency.at(index)) << 24;
}

} // namespace vexel
