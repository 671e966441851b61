#include <vexel/nodes/SoImageBackground.h>

#include <vexel/io/SoInput.h>
#include <vexel/nodes/detail/ImageFile.h>

void SoImageBackground::readFinished(SoInput& in)
{
    loadImageBeside(in, filename, image);
}

void SoImageBackground::notify(SoNotList& list)
{
    if (list.field == &filename && isNotifyEnabled())
        loadImageFile(filename.getValue(), image);
    SoBackground::notify(list);
}
