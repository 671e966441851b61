#pragma once

#include <utility>

namespace vexel {

/** What must be known of a depth buffer to make one of the same kind: only equal ones can be copied. */
namespace DepthFormat {

/** Internal format of the depth of the bound draw framebuffer, whose name is given. */
unsigned ofDrawFramebuffer(unsigned framebuffer);

/** External format and type that go with an internal format. */
std::pair<unsigned, unsigned> transfer(unsigned format);

/** Where a buffer of that format is attached. */
unsigned attachment(unsigned format);

} // namespace DepthFormat
} // namespace vexel
