#pragma once

/** Marks what is seen from outside the inspector's library; everything else stays inside. */
#define NODESCOPE_API __attribute__((visibility("default")))
