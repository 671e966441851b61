#pragma once

/** Lets inline nodes fetch their scenes from files. */
namespace InlineFiles {

void install();
void remove();

} // namespace InlineFiles
