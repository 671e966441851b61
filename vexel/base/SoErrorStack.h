#pragma once

#include <vexel/base/detail/ErrorKind.h>

/**
 * Critical error: the program cannot be expected to go on well. Carries the call stack of the place that posts it when
 * the preference VXL_DEBUG_STACKERROR is true.
 */
class VEXEL_API SoErrorStack : public vexel::detail::ErrorKind<SoErrorStack> {
public:
    /**
     * The functions that were active, innermost first, one to a line; empty when none were collected. When the
     * preference VXL_STACKWALKER_HTML_OUTPUT is true the text is HTML.
     */
    const SbString& getStack() const noexcept { return m_stack; }

    /** `format` and what follows as for printf, texts in UTF-8. */
    static void post(const char* format, ...) __attribute__((format(printf, 1, 2)));

private:
    SoErrorStack(const SbString& text, const SbString& stack) : ErrorKind(text), m_stack(stack) {}

    SbString m_stack;
};
