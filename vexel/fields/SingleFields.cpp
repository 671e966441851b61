#include <vexel/fields/SoSFBool.h>
#include <vexel/fields/SoSFBox2f.h>
#include <vexel/fields/SoSFBox2i32.h>
#include <vexel/fields/SoSFBox2s.h>
#include <vexel/fields/SoSFBox3f.h>
#include <vexel/fields/SoSFBox3i32.h>
#include <vexel/fields/SoSFBox3s.h>
#include <vexel/fields/SoSFColor.h>
#include <vexel/fields/SoSFColorRGBA.h>
#include <vexel/fields/SoSFDouble.h>
#include <vexel/fields/SoSFFloat.h>
#include <vexel/fields/SoSFInt32.h>
#include <vexel/fields/SoSFMatrix.h>
#include <vexel/fields/SoSFName.h>
#include <vexel/fields/SoSFPlane.h>
#include <vexel/fields/SoSFRotation.h>
#include <vexel/fields/SoSFShort.h>
#include <vexel/fields/SoSFString.h>
#include <vexel/fields/SoSFTime.h>
#include <vexel/fields/SoSFUInt32.h>
#include <vexel/fields/SoSFUShort.h>
#include <vexel/fields/SoSFVec2d.h>
#include <vexel/fields/SoSFVec2f.h>
#include <vexel/fields/SoSFVec2i32.h>
#include <vexel/fields/SoSFVec2s.h>
#include <vexel/fields/SoSFVec3d.h>
#include <vexel/fields/SoSFVec3f.h>
#include <vexel/fields/SoSFVec3i32.h>
#include <vexel/fields/SoSFVec3s.h>
#include <vexel/fields/SoSFVec4d.h>
#include <vexel/fields/SoSFVec4f.h>
#include <vexel/fields/SoSFVec4i32.h>
#include <vexel/fields/SoSFVec4s.h>
#include <vexel/fields/detail/FieldClass.h>
#include <vexel/fields/detail/FieldInstances.h>

template class SoSingleField<bool>;
template class SoSingleField<std::int16_t>;
template class SoSingleField<std::uint16_t>;
template class SoSingleField<std::int32_t>;
template class SoSingleField<std::uint32_t>;
template class SoSingleField<float>;
template class SoSingleField<double>;
template class SoSingleField<SbString>;
template class SoSingleField<SbName>;
template class SoSingleField<SbTime>;
template class SoSingleField<SbColor>;
template class SoSingleField<SbColorRGBA>;
template class SoSingleField<SbRotation>;
template class SoSingleField<SbMatrix>;
template class SoSingleField<SbPlane>;
template class SoSingleField<SbVec2s>;
template class SoSingleField<SbVec2i32>;
template class SoSingleField<SbVec2f>;
template class SoSingleField<SbVec2d>;
template class SoSingleField<SbVec3s>;
template class SoSingleField<SbVec3i32>;
template class SoSingleField<SbVec3f>;
template class SoSingleField<SbVec3d>;
template class SoSingleField<SbVec4s>;
template class SoSingleField<SbVec4i32>;
template class SoSingleField<SbVec4f>;
template class SoSingleField<SbVec4d>;
template class SoSingleField<SbBox2s>;
template class SoSingleField<SbBox2i32>;
template class SoSingleField<SbBox2f>;
template class SoSingleField<SbBox3s>;
template class SoSingleField<SbBox3i32>;
template class SoSingleField<SbBox3f>;

SO_FIELD_SOURCE(SoSFBool, SoSField)
SO_FIELD_SOURCE(SoSFShort, SoSField)
SO_FIELD_SOURCE(SoSFUShort, SoSField)
SO_FIELD_SOURCE(SoSFInt32, SoSField)
SO_FIELD_SOURCE(SoSFUInt32, SoSField)
SO_FIELD_SOURCE(SoSFFloat, SoSField)
SO_FIELD_SOURCE(SoSFDouble, SoSField)
SO_FIELD_SOURCE(SoSFString, SoSField)
SO_FIELD_SOURCE(SoSFName, SoSField)
SO_FIELD_SOURCE(SoSFTime, SoSField)
SO_FIELD_SOURCE(SoSFColor, SoSField)
SO_FIELD_SOURCE(SoSFColorRGBA, SoSField)
SO_FIELD_SOURCE(SoSFRotation, SoSField)
SO_FIELD_SOURCE(SoSFMatrix, SoSField)
SO_FIELD_SOURCE(SoSFPlane, SoSField)
SO_FIELD_SOURCE(SoSFVec2s, SoSField)
SO_FIELD_SOURCE(SoSFVec2i32, SoSField)
SO_FIELD_SOURCE(SoSFVec2f, SoSField)
SO_FIELD_SOURCE(SoSFVec2d, SoSField)
SO_FIELD_SOURCE(SoSFVec3s, SoSField)
SO_FIELD_SOURCE(SoSFVec3i32, SoSField)
SO_FIELD_SOURCE(SoSFVec3f, SoSField)
SO_FIELD_SOURCE(SoSFVec3d, SoSField)
SO_FIELD_SOURCE(SoSFVec4s, SoSField)
SO_FIELD_SOURCE(SoSFVec4i32, SoSField)
SO_FIELD_SOURCE(SoSFVec4f, SoSField)
SO_FIELD_SOURCE(SoSFVec4d, SoSField)
SO_FIELD_SOURCE(SoSFBox2s, SoSField)
SO_FIELD_SOURCE(SoSFBox2i32, SoSField)
SO_FIELD_SOURCE(SoSFBox2f, SoSField)
SO_FIELD_SOURCE(SoSFBox3s, SoSField)
SO_FIELD_SOURCE(SoSFBox3i32, SoSField)
SO_FIELD_SOURCE(SoSFBox3f, SoSField)
