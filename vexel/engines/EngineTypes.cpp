#include <vexel/engines/detail/EngineTypes.h>

#include <vexel/engines/SoCalculator.h>
#include <vexel/engines/SoComposeRotation.h>
#include <vexel/engines/SoElapsedTime.h>

void registerEngineTypes()
{
    SoCalculator::getClassTypeId();
    SoComposeRotation::getClassTypeId();
    SoElapsedTime::getClassTypeId();
}
