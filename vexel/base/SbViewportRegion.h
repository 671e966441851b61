#pragma once

#include <vexel/base/SbVec2f.h>
#include <vexel/base/SbVec2s.h>

/**
 * The part of a window that is drawn into. The part is kept relative to the window (0 to 1, origin at the lower left),
 * so that it follows when the window's size changes. A default-constructed region is all of a 100 x 100 window.
 */
class VEXEL_API SbViewportRegion {
public:
    SbViewportRegion() noexcept = default;
    SbViewportRegion(short width, short height) noexcept : SbViewportRegion(SbVec2s(width, height)) {}
    /** All of a window of this size in pixels. */
    explicit SbViewportRegion(const SbVec2s& windowSize) noexcept { setWindowSize(windowSize); }

    /** Negative sizes become 0. */
    void setWindowSize(const SbVec2s& size) noexcept;
    void setWindowSize(short width, short height) noexcept { setWindowSize(SbVec2s(width, height)); }
    const SbVec2s& getWindowSize() const noexcept { return m_windowSize; }

    void setViewport(const SbVec2f& origin, const SbVec2f& size) noexcept;
    /** The part in pixels of the present window; a window without pixels takes no part. */
    void setViewportPixels(const SbVec2s& origin, const SbVec2s& size) noexcept;

    const SbVec2f& getViewportOrigin() const noexcept { return m_origin; }
    const SbVec2f& getViewportSize() const noexcept { return m_size; }
    SbVec2s getViewportOriginPixels() const noexcept;
    SbVec2s getViewportSizePixels() const noexcept;

    /** Width by height in pixels; 1 when the height is 0. */
    float getViewportAspectRatio() const noexcept;

    /** Resolution of the screen, by which text and lines given in points are sized; 72 unless set, must be above 0. */
    void setPixelsPerInch(float pixels) noexcept;
    float getPixelsPerInch() const noexcept { return m_pixelsPerInch; }
    /** A point is 1/72 inch. */
    float getPixelsPerPoint() const noexcept { return m_pixelsPerInch / 72; }

    friend bool operator==(const SbViewportRegion& a, const SbViewportRegion& b) noexcept
    {
        return a.m_windowSize == b.m_windowSize && a.m_origin == b.m_origin && a.m_size == b.m_size &&
               a.m_pixelsPerInch == b.m_pixelsPerInch;
    }
    friend bool operator!=(const SbViewportRegion& a, const SbViewportRegion& b) noexcept { return !(a == b); }

private:
    SbVec2s m_windowSize{100, 100};
    SbVec2f m_origin{0, 0};
    SbVec2f m_size{1, 1};
    float m_pixelsPerInch = 72;
};
