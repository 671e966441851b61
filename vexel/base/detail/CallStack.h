#pragma once

#include <string>

namespace vexel::detail {

/**
 * The active functions as text, innermost first, one to a line: number, demangled name with offset (as far as the
 * function is exported), library with offset. Starts with the function that `returnAddress` leads back to; with
 * all functions when none of them does.
 */
std::string describeCallStack(const void* returnAddress);

} // namespace vexel::detail
