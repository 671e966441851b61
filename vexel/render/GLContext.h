#pragma once

#include <memory>
#include <string>

#include <vexel/base/VexelApi.h>

namespace vexel {

/**
 * An OpenGL 3.3 (or newer) core context that draws off screen and needs neither a window nor a display server.
 *
 * A context belongs to one thread at a time. Bind it with a GLContext::Scope for as long as it is needed; whatever
 * context was current before, of this class or of Qt, is current again afterwards.
 */
class VEXEL_API GLContext {
public:
    /** Makes a context. Returns null on a machine without one and says why in `error`. */
    static std::unique_ptr<GLContext> create(std::string& error);
    ~GLContext();
    GLContext(const GLContext&) = delete;
    GLContext& operator=(const GLContext&) = delete;

    /** Keeps a context current during its own life time; scopes nest. */
    class VEXEL_API Scope {
    public:
        explicit Scope(const GLContext& context);
        ~Scope();
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;

        /** False when the driver refused to bind the context; nothing may be drawn then. */
        bool isCurrent() const { return m_current; }

    private:
        struct Previous;
        std::unique_ptr<Previous> m_previous;
        void* m_display;
        bool m_current;
    };

private:
    GLContext(void* display, void* context);

    void* m_display;
    void* m_context;
};

} // namespace vexel
