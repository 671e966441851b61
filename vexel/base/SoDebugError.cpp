#include <vexel/base/SoDebugError.h>

#include <vexel/base/detail/ErrorHandler.h>

template class vexel::detail::ErrorKind<SoDebugError>;

void SoDebugError::postFormatted(Severity severity, const char* method, const char* format, std::va_list arguments)
{
    static constexpr const char* Titles[] = {"Error in ", "Warning in ", "Information from "};
    const SbString text = SbString(Titles[severity]) + method + ": " + formatted(format, arguments);
    SoDebugError(severity, text).handle();
}

void SoDebugError::post(const char* method, const char* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    postFormatted(ERROR, method, format, arguments);
    va_end(arguments);
}

void SoDebugError::postWarning(const char* method, const char* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    postFormatted(WARNING, method, format, arguments);
    va_end(arguments);
}

void SoDebugError::postInfo(const char* method, const char* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    postFormatted(INFO, method, format, arguments);
    va_end(arguments);
}
