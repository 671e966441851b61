#include "SoPlotkit.h"

void SoPlotkit::init() {}
void SoPlotkit::finish() {}
