#pragma once

#include <plotkit/PlotkitApi.h>

/** The export module as a whole. */
class PLOTKIT_API SoPlotkit {
public:
    SoPlotkit() = delete;

    /** To be called before the first export: makes the toolkit ready. */
    static void init();
    /** To be called after the last one. Nothing is kept between exports, so that nothing is freed. */
    static void finish();
};
