#include <vexel/base/SoErrorStack.h>

#include <vexel/base/SoPreferences.h>
#include <vexel/base/detail/CallStack.h>
#include <vexel/base/detail/ErrorHandler.h>

template class vexel::detail::ErrorKind<SoErrorStack>;

static SbString collectStack(const void* returnAddress)
{
    if (!SoPreferences::getBool("VXL_DEBUG_STACKERROR", false))
        return SbString();
    QString text = QString::fromStdString(vexel::detail::describeCallStack(returnAddress));
    if (!SoPreferences::getBool("VXL_STACKWALKER_HTML_OUTPUT", false))
        return text;
    return "<pre>" + text.toHtmlEscaped() + "</pre>";
}

void SoErrorStack::post(const char* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    const SoErrorStack error(SbString("Critical error: ") + formatted(format, arguments),
                             collectStack(__builtin_return_address(0)));
    va_end(arguments);
    error.handle();
}
