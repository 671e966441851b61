#include "SoPlotkit.h"

#include <vexel/io/SoDB.h>

void SoPlotkit::init()
{
    SoDB::init();
}

void SoPlotkit::finish() {}
