#pragma once

/** Marks what programs that export pictures use; everything else stays inside the library. */
#define PLOTKIT_API __attribute__((visibility("default")))
