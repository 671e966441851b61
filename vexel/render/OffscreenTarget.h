#pragma once

#include <QtGui/QImage>

#include <vexel/base/VexelApi.h>

namespace vexel {

/** A picture in memory to draw into with the current OpenGL context: colour with alpha, depth and stencil. */
class VEXEL_API OffscreenTarget {
public:
    /** Sizes from 1 to maxSize(). `samples` above 1 smooths edges; the driver may give fewer. */
    OffscreenTarget(int width, int height, int samples = 1);

    /** Needs the context current. */
    ~OffscreenTarget();
    OffscreenTarget(const OffscreenTarget&) = delete;
    OffscreenTarget& operator=(const OffscreenTarget&) = delete;

    /** False when the driver cannot provide such a picture, for want of memory for example. */
    bool isComplete() const { return m_complete; }
    int width() const { return m_width; }
    int height() const { return m_height; }

    /** Makes it the target of drawing. */
    void bind() const;

    /** The picture drawn so far, premultiplied with its alpha. */
    QImage image() const;

    /** Largest width and height in the current context. */
    static int maxSize();

private:
    enum Buffer { Color, Depth, Resolved, BufferCount };

    int m_width;
    int m_height;
    int m_samples;
    bool m_complete;
    unsigned m_framebuffer = 0;
    unsigned m_resolveFramebuffer = 0;
    unsigned m_buffers[BufferCount] = {};
};

} // namespace vexel
