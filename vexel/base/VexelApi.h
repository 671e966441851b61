#pragma once

/** Marks a class or function as part of the toolkit's public interface; everything else stays inside the library. */
#define VEXEL_API __attribute__((visibility("default")))
