#include <vexel/io/detail/HeldObjects.h>

#include <vexel/engines/SoEngine.h>
#include <vexel/engines/SoEngineOutput.h>
#include <vexel/io/detail/GlobalFields.h>

const SoFieldContainer* sourceOf(const SoField& field)
{
    if (SoEngineOutput* output = field.getConnectedEngine())
        return output->getContainer();
    const SoField* master = field.getConnectedField();
    return master && !isGlobalField(*master) ? master->getContainer() : nullptr;
}
