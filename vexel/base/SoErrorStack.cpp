#include <vexel/base/SoErrorStack.h>

#include <vexel/base/SoPreferences.h>
#include <vexel/base/detail/CallStack.h>
#include <vexel/base/detail/ErrorHandler.h>

template class vexel::detail::ErrorKind<SoErrorStack>;

// Not inlined, so that the number of own functions on the stack is known.
__attribute__((noinline)) static SbString collectStack()
{
    if (!SoPreferences::getBool("VXL_DEBUG_STACKERROR", false))
        return SbString();
    constexpr int OwnFunctions = 2; // this one and post()
    const QString text = QString::fromStdString(vexel::detail::describeCallStack(OwnFunctions));
    if (!SoPreferences::getBool("VXL_STACKWALKER_HTML_OUTPUT", false))
        return text;
    return "<pre>" + text.toHtmlEscaped() + "</pre>";
}

void SoErrorStack::post(const char* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    const SoErrorStack error(SbString("Critical error: ") + formatted(format, arguments), collectStack());
    va_end(arguments);
    error.handle();
}
