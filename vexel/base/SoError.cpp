#include <vexel/base/SoError.h>

#include <vexel/base/detail/ErrorHandler.h>

#include <cstdio>
#include <string>

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
    std::va_list forLength;
    va_copy(forLength, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, forLength);
    va_end(forLength);
    if (length < 0)
        return SbString(format);
    std::string text(static_cast<std::size_t>(length) + 1, '\0');
    std::vsnprintf(text.data(), text.size(), format, arguments);
    return SbString(std::string_view(text).substr(0, static_cast<std::size_t>(length)));
}

void SoError::handle(const vexel::detail::ErrorHandler& handler) const
{
    const auto entry = handler.get();
    entry.callback(this, entry.data);
}
