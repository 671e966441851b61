#pragma once

#include <string>

namespace vexel {

/** Links a program from shader texts (`geometry` may be empty). A text of this library that the driver refuses is
   reported once on the debug output, and gives 0: what would be drawn with it stays invisible. */
unsigned compileProgram(const std::string& vertex, const std::string& geometry, const std::string& fragment);

} // namespace vexel
