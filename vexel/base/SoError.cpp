#include <vexel/base/SoError.h>

#include <vexel/base/detail/ErrorHandler.h>

#include <cstdio>

namespace vexel::detail {

void ErrorHandler::set(SoErrorCB* callback, void* data)
{
    const std::lock_guard lock(m_mutex);
    m_entry = callback ? Entry{callback, data} : Entry{print, nullptr};
}

ErrorHandler::Entry ErrorHandler::get() const
{
    const std::lock_guard lock(m_mutex);
    return m_entry;
}

void ErrorHandler::print(const SoError* error, void*)
{
    std::fprintf(stderr, "%s\n", error->getDebugString().toUtf8().constData());
}

} // namespace vexel::detail

static vexel::detail::ErrorHandler& handler()
{
    static vexel::detail::ErrorHandler instance;
    return instance;
}

void SoError::setHandlerCallback(SoErrorCB* callback, void* data)
{
    handler().set(callback, data);
}

SoErrorCB* SoError::getHandlerCallback()
{
    return handler().get().callback;
}

void* SoError::getHandlerData()
{
    return handler().get().data;
}

void SoError::post(const char* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    const SoError error(formatted(format, arguments));
    va_end(arguments);
    error.handle(handler());
}

SbString SoError::formatted(const char* format, std::va_list arguments)
{
    return QString::vasprintf(format, arguments);
}

void SoError::handle(const vexel::detail::ErrorHandler& handler) const
{
    const auto entry = handler.get();
    entry.callback(this, entry.data);
}
