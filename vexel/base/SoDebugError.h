#pragma once

#include <vexel/base/detail/ErrorKind.h>

/** Wrong use of the toolkit by a program, or an operation that failed, with the method that noticed. */
class VEXEL_API SoDebugError : public vexel::detail::ErrorKind<SoDebugError> {
public:
    enum Severity { ERROR, WARNING, INFO };

    Severity getSeverity() const noexcept { return m_severity; }

    /** `method` as "Class::method"; `format` and what follows as for printf, texts in UTF-8. */
    static void post(const char* method, const char* format, ...) __attribute__((format(printf, 2, 3)));
    static void postWarning(const char* method, const char* format, ...) __attribute__((format(printf, 2, 3)));
    static void postInfo(const char* method, const char* format, ...) __attribute__((format(printf, 2, 3)));

private:
    SoDebugError(Severity severity, const SbString& text) : ErrorKind(text), m_severity(severity) {}
    static void postFormatted(Severity severity, const char* method, const char* format, std::va_list arguments);

    Severity m_severity;
};
