#pragma once

#include <nodescope/tree/NodeCategory.h>
#include <vexel/base/SoType.h>

/** The category of a type, by the first rule that fits; Property when none does. Never Unknown or a reserved one. */
Nsc::NodeCategory classifyType(SoType type);
