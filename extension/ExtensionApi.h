#pragma once

/** Marks a class as part of the interface between inspector and plug-ins; everything else stays inside the library. */
#define NSC_API __attribute__((visibility("default")))
