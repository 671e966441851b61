#pragma once

#include <vexel/base/SbString.h>

#include <cstdarg>

class SoError;

namespace vexel::detail {
class ErrorHandler;
}

/** Receives a posted error, and the data that was registered with the function. */
using SoErrorCB = void(const SoError* error, void* data);

/**
 * A message about something that went wrong, and base of the more special kinds.
 *
 * Each kind of error has a handler of its own, which a program may replace with setHandlerCallback(); the one
 * in place from the start prints the message to the standard error output. A handler is called on the thread that
 * posts, one call for each message, and may itself post errors.
 */
class VEXEL_API SoError {
public:
    virtual ~SoError() = default;

    SoError(const SoError&) = delete;
    SoError& operator=(const SoError&) = delete;

    /** The whole message, with what it is about in front. */
    const SbString& getDebugString() const noexcept { return m_text; }

    /** Replaces the handler of plain errors; null brings back the printing one. */
    static void setHandlerCallback(SoErrorCB* callback, void* data = nullptr);
    static SoErrorCB* getHandlerCallback();
    static void* getHandlerData();

    /** Hands a message to the handler; `format` and what follows as for printf, texts in UTF-8. */
    static void post(const char* format, ...) __attribute__((format(printf, 1, 2)));

protected:
    explicit SoError(const SbString& text) : m_text(text) {}

    static SbString formatted(const char* format, std::va_list arguments);
    /** Calls the handler that is in place in `handler`. */
    void handle(const vexel::detail::ErrorHandler& handler) const;

private:
    SbString m_text;
};
