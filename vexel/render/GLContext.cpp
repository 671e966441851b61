#include <vexel/render/GLContext.h>

// Before Qt's headers, which would otherwise declare the same entry points in their own way.
#include <epoxy/gl.h>

#include <epoxy/egl.h>

#include <QtGui/QOpenGLContext>

namespace vexel {

namespace {

/** The display is opened once and kept: closing it would invalidate the contexts of everyone else in the process. */
EGLDisplay offscreenDisplay()
{
    static const EGLDisplay display = [] {
        EGLDisplay opened = EGL_NO_DISPLAY;
        if (epoxy_has_egl_extension(EGL_NO_DISPLAY, "EGL_MESA_platform_surfaceless"))
            opened = eglGetPlatformDisplayEXT(EGL_PLATFORM_SURFACELESS_MESA, EGL_DEFAULT_DISPLAY, nullptr);
        if (opened == EGL_NO_DISPLAY)
            opened = eglGetDisplay(EGL_DEFAULT_DISPLAY);
        return opened != EGL_NO_DISPLAY && eglInitialize(opened, nullptr, nullptr) ? opened : EGL_NO_DISPLAY;
    }();
    return display;
}

EGLContext createCoreContext(EGLDisplay display)
{
    const EGLint config_wanted[] = {EGL_SURFACE_TYPE, EGL_DONT_CARE, EGL_RENDERABLE_TYPE, EGL_OPENGL_BIT, EGL_NONE};
    EGLConfig config = nullptr;
    EGLint count = 0;
    if (!eglChooseConfig(display, config_wanted, &config, 1, &count) || count == 0)
        config = EGL_NO_CONFIG_KHR;
    const EGLint context_wanted[] = {
        EGL_CONTEXT_MAJOR_VERSION,           3,       EGL_CONTEXT_MINOR_VERSION, 3, EGL_CONTEXT_OPENGL_PROFILE_MASK,
        EGL_CONTEXT_OPENGL_CORE_PROFILE_BIT, EGL_NONE};
    return eglCreateContext(display, config, EGL_NO_CONTEXT, context_wanted);
}

} // namespace

struct GLContext::Scope::Previous {
    QOpenGLContext* qtContext = nullptr;
    QSurface* qtSurface = nullptr;
    EGLenum api = EGL_NONE;
    EGLDisplay display = EGL_NO_DISPLAY;
    EGLContext context = EGL_NO_CONTEXT;
    EGLSurface draw = EGL_NO_SURFACE;
    EGLSurface read = EGL_NO_SURFACE;
};

std::unique_ptr<GLContext> GLContext::create(std::string& error)
{
    const EGLDisplay display = offscreenDisplay();
    if (display == EGL_NO_DISPLAY) {
        error = "Off-screen drawing is not available: no EGL display could be opened. Install a driver with EGL "
                "support, for example Mesa (package libegl-mesa0).";
        return nullptr;
    }
    const EGLenum previous_api = eglQueryAPI();
    EGLContext context = EGL_NO_CONTEXT;
    if (eglBindAPI(EGL_OPENGL_API))
        context = createCoreContext(display);
    eglBindAPI(previous_api);
    if (context == EGL_NO_CONTEXT) {
        error = "Off-screen drawing is not available: the graphics driver gives no OpenGL 3.3 core context. Update the "
                "driver, or install Mesa's software renderer (package libgl1-mesa-dri).";
        return nullptr;
    }
    return std::unique_ptr<GLContext>(new GLContext(display, context));
}

GLContext::GLContext(void* display, void* context) : m_display(display), m_context(context) {}

GLContext::~GLContext()
{
    eglDestroyContext(m_display, m_context);
}

GLContext::Scope::Scope(const GLContext& context)
    : m_previous(std::make_unique<Previous>()), m_display(context.m_display)
{
    Previous& previous = *m_previous;
    previous.qtContext = QOpenGLContext::currentContext();
    if (previous.qtContext) {
        // A thread cannot have current contexts of two window systems at once: Qt's has to step aside first.
        previous.qtSurface = previous.qtContext->surface();
        previous.qtContext->doneCurrent();
    }
    previous.api = eglQueryAPI();
    eglBindAPI(EGL_OPENGL_API);
    previous.display = eglGetCurrentDisplay();
    previous.context = eglGetCurrentContext();
    previous.draw = eglGetCurrentSurface(EGL_DRAW);
    previous.read = eglGetCurrentSurface(EGL_READ);
    m_current = eglMakeCurrent(m_display, EGL_NO_SURFACE, EGL_NO_SURFACE, context.m_context);
}

GLContext::Scope::~Scope()
{
    const Previous& previous = *m_previous;
    if (previous.context != EGL_NO_CONTEXT)
        eglMakeCurrent(previous.display, previous.draw, previous.read, previous.context);
    else
        eglMakeCurrent(m_display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
    eglBindAPI(previous.api);
    if (previous.qtContext)
        previous.qtContext->makeCurrent(previous.qtSurface);
}

} // namespace vexel
