#pragma once

#include <vexel/fields/SoFieldContainer.h>
#include <vexel/fields/SoSFArray2D.h>

/** Numbers that several fields may share, such as the vertices of buffered shapes. */
class VEXEL_API SoBufferObject : public SoFieldContainer {
    SO_CONTAINER(SoBufferObject, SoFieldContainer)
public:
    /** One row for each element, with as many numbers as the element has components. */
    SoSFArray2D values{this, "values"};

    SoBufferObject() = default;

    int getNumComponents() const { return values.getSize()[0]; }
    int getNumElements() const { return values.getSize()[1]; }
};
