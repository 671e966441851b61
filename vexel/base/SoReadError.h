#pragma once

#include <vexel/base/detail/ErrorKind.h>

/** Something in a file or text that could not be read as it stands. */
class VEXEL_API SoReadError : public vexel::detail::ErrorKind<SoReadError> {
public:
    /**
     * `place` says where, as "scene.vx, line 3, column 7"; `format` and what follows as for printf, texts in UTF-8.
     */
    static void post(const SbString& place, const char* format, ...) __attribute__((format(printf, 2, 3)));

private:
    using ErrorKind::ErrorKind;
};
