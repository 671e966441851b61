#pragma once

#include <plotkit/PlotkitApi.h>

/** The export module as a whole. */
class PLOTKIT_API SoPlotkit {
public:
    SoPlotkit() = delete;

    /** To be called before any export; calls are counted. */
    static void init();
    /** Takes back one init(). */
    static void finish();
};
