#include <vexel/fields/SoMFBool.h>
#include <vexel/fields/SoMFColor.h>
#include <vexel/fields/SoMFColorRGBA.h>
#include <vexel/fields/SoMFDouble.h>
#include <vexel/fields/SoMFFloat.h>
#include <vexel/fields/SoMFInt32.h>
#include <vexel/fields/SoMFMatrix.h>
#include <vexel/fields/SoMFName.h>
#include <vexel/fields/SoMFPlane.h>
#include <vexel/fields/SoMFRotation.h>
#include <vexel/fields/SoMFShort.h>
#include <vexel/fields/SoMFString.h>
#include <vexel/fields/SoMFTime.h>
#include <vexel/fields/SoMFUInt32.h>
#include <vexel/fields/SoMFUShort.h>
#include <vexel/fields/SoMFVec2d.h>
#include <vexel/fields/SoMFVec2f.h>
#include <vexel/fields/SoMFVec2i32.h>
#include <vexel/fields/SoMFVec2s.h>
#include <vexel/fields/SoMFVec3d.h>
#include <vexel/fields/SoMFVec3f.h>
#include <vexel/fields/SoMFVec3i32.h>
#include <vexel/fields/SoMFVec3s.h>
#include <vexel/fields/SoMFVec4d.h>
#include <vexel/fields/SoMFVec4f.h>
#include <vexel/fields/SoMFVec4i32.h>
#include <vexel/fields/SoMFVec4s.h>
#include <vexel/fields/detail/FieldClass.h>
#include <vexel/fields/detail/FieldInstances.h>

template class SoMultiField<bool>;
template class SoMultiField<std::int16_t>;
template class SoMultiField<std::uint16_t>;
template class SoMultiField<std::int32_t>;
template class SoMultiField<std::uint32_t>;
template class SoMultiField<float>;
template class SoMultiField<double>;
template class SoMultiField<SbString>;
template class SoMultiField<SbName>;
template class SoMultiField<SbTime>;
template class SoMultiField<SbColor>;
template class SoMultiField<SbColorRGBA>;
template class SoMultiField<SbRotation>;
template class SoMultiField<SbMatrix>;
template class SoMultiField<SbPlane>;
template class SoMultiField<SbVec2s>;
template class SoMultiField<SbVec2i32>;
template class SoMultiField<SbVec2f>;
template class SoMultiField<SbVec2d>;
template class SoMultiField<SbVec3s>;
template class SoMultiField<SbVec3i32>;
template class SoMultiField<SbVec3f>;
template class SoMultiField<SbVec3d>;
template class SoMultiField<SbVec4s>;
template class SoMultiField<SbVec4i32>;
template class SoMultiField<SbVec4f>;
template class SoMultiField<SbVec4d>;

SO_FIELD_SOURCE(SoMFBool, SoMField)
SO_FIELD_SOURCE(SoMFShort, SoMField)
SO_FIELD_SOURCE(SoMFUShort, SoMField)
SO_FIELD_SOURCE(SoMFInt32, SoMField)
SO_FIELD_SOURCE(SoMFUInt32, SoMField)
SO_FIELD_SOURCE(SoMFFloat, SoMField)
SO_FIELD_SOURCE(SoMFDouble, SoMField)
SO_FIELD_SOURCE(SoMFString, SoMField)
SO_FIELD_SOURCE(SoMFName, SoMField)
SO_FIELD_SOURCE(SoMFTime, SoMField)
SO_FIELD_SOURCE(SoMFColor, SoMField)
SO_FIELD_SOURCE(SoMFColorRGBA, SoMField)
SO_FIELD_SOURCE(SoMFRotation, SoMField)
SO_FIELD_SOURCE(SoMFMatrix, SoMField)
SO_FIELD_SOURCE(SoMFPlane, SoMField)
SO_FIELD_SOURCE(SoMFVec2s, SoMField)
SO_FIELD_SOURCE(SoMFVec2i32, SoMField)
SO_FIELD_SOURCE(SoMFVec2f, SoMField)
SO_FIELD_SOURCE(SoMFVec2d, SoMField)
SO_FIELD_SOURCE(SoMFVec3s, SoMField)
SO_FIELD_SOURCE(SoMFVec3i32, SoMField)
SO_FIELD_SOURCE(SoMFVec3f, SoMField)
SO_FIELD_SOURCE(SoMFVec3d, SoMField)
SO_FIELD_SOURCE(SoMFVec4s, SoMField)
SO_FIELD_SOURCE(SoMFVec4i32, SoMField)
SO_FIELD_SOURCE(SoMFVec4f, SoMField)
SO_FIELD_SOURCE(SoMFVec4d, SoMField)
