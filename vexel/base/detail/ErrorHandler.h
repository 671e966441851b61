#pragma once

#include <vexel/base/detail/ErrorKind.h>

#include <mutex>

namespace vexel::detail {

/** The replaceable handler of one kind of error. */
class ErrorHandler {
public:
    struct Entry {
        SoErrorCB* callback;
        void* data;
    };

    /** Null brings back print(). */
    void set(SoErrorCB* callback, void* data);
    Entry get() const;

private:
    static void print(const SoError* error, void* data);

    mutable std::mutex m_mutex;
    Entry m_entry{print, nullptr};
};

template <class Kind>
ErrorHandler& ErrorKind<Kind>::handler()
{
    static ErrorHandler instance;
    return instance;
}

template <class Kind>
void ErrorKind<Kind>::setHandlerCallback(SoErrorCB* callback, void* data)
{
    handler().set(callback, data);
}

template <class Kind>
SoErrorCB* ErrorKind<Kind>::getHandlerCallback()
{
    return handler().get().callback;
}

template <class Kind>
void* ErrorKind<Kind>::getHandlerData()
{
    return handler().get().data;
}

template <class Kind>
void ErrorKind<Kind>::handle() const
{
    SoError::handle(handler());
}

} // namespace vexel::detail
