#include "SoVectorOutput.h"

SoVectorOutput::~SoVectorOutput() = default;
