#pragma once

#include <vexel/base/SoError.h>

namespace vexel::detail {

/** Base of the special kinds of error: gives each `Kind` a handler of its own. Defined in ErrorHandler.h. */
template <class Kind>
class VEXEL_API ErrorKind : public SoError {
public:
    /** Replaces the handler of this kind of error only; null brings back the one that prints. */
    static void setHandlerCallback(SoErrorCB* callback, void* data = nullptr);
    static SoErrorCB* getHandlerCallback();
    static void* getHandlerData();

protected:
    using SoError::SoError;

    /** Calls the handler of this kind. */
    void handle() const;

private:
    static ErrorHandler& handler();
};

} // namespace vexel::detail
