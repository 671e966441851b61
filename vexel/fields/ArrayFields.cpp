#include <vexel/fields/SoSFArray.h>
#include <vexel/fields/SoSFArray2D.h>
#include <vexel/fields/SoSFArray3D.h>
#include <vexel/fields/SoSFImage.h>
#include <vexel/fields/SoSFImage3.h>
#include <vexel/fields/SoSField.h>
#include <vexel/fields/detail/FieldClass.h>

SO_FIELD_SOURCE(SoSFImage, SoSField)
SO_FIELD_SOURCE(SoSFImage3, SoSField)
SO_FIELD_SOURCE(SoSFArray2D, SoSFArray)
SO_FIELD_SOURCE(SoSFArray3D, SoSFArray)
