#include <vexel/base/SoReadError.h>

#include <vexel/base/detail/ErrorHandler.h>

template class vexel::detail::ErrorKind<SoReadError>;

void SoReadError::post(const SbString& place, const char* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    const SoReadError error(place + SbString(": ") + formatted(format, arguments));
    va_end(arguments);
    error.handle();
}
