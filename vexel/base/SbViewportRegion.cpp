#include <vexel/base/SbViewportRegion.h>

#include <algorithm>
#include <cmath>
#include <limits>

/** Nearest pixel; values that no short can hold are cut off. */
static SbVec2s toPixels(const SbVec2f& part, const SbVec2s& window) noexcept
{
    constexpr float Limit = std::numeric_limits<short>::max();
    SbVec2s pixels;
    for (int i = 0; i < 2; ++i)
        pixels[i] = static_cast<short>(std::clamp(std::round(part[i] * static_cast<float>(window[i])), -Limit, Limit));
    return pixels;
}

void SbViewportRegion::setWindowSize(const SbVec2s& size) noexcept
{
    m_windowSize.setValue(std::max<short>(size[0], 0), std::max<short>(size[1], 0));
}

void SbViewportRegion::setViewport(const SbVec2f& origin, const SbVec2f& size) noexcept
{
    m_origin = origin;
    m_size = size;
}

void SbViewportRegion::setViewportPixels(const SbVec2s& origin, const SbVec2s& size) noexcept
{
    if (m_windowSize[0] == 0 || m_windowSize[1] == 0)
        return;
    for (int i = 0; i < 2; ++i) {
        m_origin[i] = static_cast<float>(origin[i]) / static_cast<float>(m_windowSize[i]);
        m_size[i] = static_cast<float>(size[i]) / static_cast<float>(m_windowSize[i]);
    }
}

SbVec2s SbViewportRegion::getViewportOriginPixels() const noexcept
{
    return toPixels(m_origin, m_windowSize);
}

SbVec2s SbViewportRegion::getViewportSizePixels() const noexcept
{
    return toPixels(m_size, m_windowSize);
}

float SbViewportRegion::getViewportAspectRatio() const noexcept
{
    const SbVec2s pixels = getViewportSizePixels();
    return pixels[1] == 0 ? 1.0f : static_cast<float>(pixels[0]) / static_cast<float>(pixels[1]);
}

void SbViewportRegion::setPixelsPerInch(float pixels) noexcept
{
    if (pixels > 0)
        m_pixelsPerInch = pixels;
}
