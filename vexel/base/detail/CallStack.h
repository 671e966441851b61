#pragma once

#include <string>

namespace vexel::detail {

/**
 * The calling functions as text, innermost first, one to a line: number, demangled name with offset (as far as the
 * function is exported), library with offset. Leaves out itself and the first `skip` callers.
 */
std::string describeCallStack(int skip);

} // namespace vexel::detail
