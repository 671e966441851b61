#include <vexel/fields/detail/FieldTypes.h>

#include <vexel/fields/SoBufferObject.h>
#include <vexel/fields/SoMFBitMask.h>
#include <vexel/fields/SoMFBool.h>
#include <vexel/fields/SoMFColor.h>
#include <vexel/fields/SoMFColorRGBA.h>
#include <vexel/fields/SoMFDouble.h>
#include <vexel/fields/SoMFEngine.h>
#include <vexel/fields/SoMFEnum.h>
#include <vexel/fields/SoMFFloat.h>
#include <vexel/fields/SoMFInstanceParameter.h>
#include <vexel/fields/SoMFInt32.h>
#include <vexel/fields/SoMFMatrix.h>
#include <vexel/fields/SoMFName.h>
#include <vexel/fields/SoMFNode.h>
#include <vexel/fields/SoMFPath.h>
#include <vexel/fields/SoMFPlane.h>
#include <vexel/fields/SoMFRotation.h>
#include <vexel/fields/SoMFShort.h>
#include <vexel/fields/SoMFString.h>
#include <vexel/fields/SoMFTime.h>
#include <vexel/fields/SoMFUInt32.h>
#include <vexel/fields/SoMFUShort.h>
#include <vexel/fields/SoMFUniformShaderParameter.h>
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
#include <vexel/fields/SoMField.h>
#include <vexel/fields/SoSFArray.h>
#include <vexel/fields/SoSFArray2D.h>
#include <vexel/fields/SoSFArray3D.h>
#include <vexel/fields/SoSFBitMask.h>
#include <vexel/fields/SoSFBool.h>
#include <vexel/fields/SoSFBox2f.h>
#include <vexel/fields/SoSFBox2i32.h>
#include <vexel/fields/SoSFBox2s.h>
#include <vexel/fields/SoSFBox3f.h>
#include <vexel/fields/SoSFBox3i32.h>
#include <vexel/fields/SoSFBox3s.h>
#include <vexel/fields/SoSFBufferObject.h>
#include <vexel/fields/SoSFColor.h>
#include <vexel/fields/SoSFColorRGBA.h>
#include <vexel/fields/SoSFDouble.h>
#include <vexel/fields/SoSFEngine.h>
#include <vexel/fields/SoSFEnum.h>
#include <vexel/fields/SoSFFieldContainer.h>
#include <vexel/fields/SoSFFloat.h>
#include <vexel/fields/SoSFImage.h>
#include <vexel/fields/SoSFImage3.h>
#include <vexel/fields/SoSFInt32.h>
#include <vexel/fields/SoSFMatrix.h>
#include <vexel/fields/SoSFName.h>
#include <vexel/fields/SoSFNode.h>
#include <vexel/fields/SoSFPath.h>
#include <vexel/fields/SoSFPlane.h>
#include <vexel/fields/SoSFRotation.h>
#include <vexel/fields/SoSFShort.h>
#include <vexel/fields/SoSFString.h>
#include <vexel/fields/SoSFTime.h>
#include <vexel/fields/SoSFTrigger.h>
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
#include <vexel/fields/SoSField.h>

namespace {

template <class... Fields>
void registerAll()
{
    (Fields::getClassTypeId(), ...);
}

} // namespace

void registerFieldTypes()
{
    registerAll<SoMFBitMask, SoMFBool, SoMFColor, SoMFColorRGBA, SoMFDouble, SoMFEngine, SoMFEnum, SoMFFloat,
                SoMFInstanceParameter, SoMFInt32, SoMFMatrix, SoMFName, SoMFNode, SoMFPath, SoMFPlane, SoMFRotation,
                SoMFShort, SoMFString, SoMFTime, SoMFUInt32, SoMFUShort, SoMFUniformShaderParameter, SoMFVec2d,
                SoMFVec2f, SoMFVec2i32, SoMFVec2s, SoMFVec3d, SoMFVec3f, SoMFVec3i32, SoMFVec3s, SoMFVec4d, SoMFVec4f,
                SoMFVec4i32, SoMFVec4s, SoMField, SoSFArray, SoSFArray2D, SoSFArray3D, SoSFBitMask, SoSFBool, SoSFBox2f,
                SoSFBox2i32, SoSFBox2s, SoSFBox3f, SoSFBox3i32, SoSFBox3s, SoSFBufferObject, SoSFColor, SoSFColorRGBA,
                SoSFDouble, SoSFEngine, SoSFEnum, SoSFFieldContainer, SoSFFloat, SoSFImage, SoSFImage3, SoSFInt32,
                SoSFMatrix, SoSFName, SoSFNode, SoSFPath, SoSFPlane, SoSFRotation, SoSFShort, SoSFString, SoSFTime,
                SoSFTrigger, SoSFUInt32, SoSFUShort, SoSFVec2d, SoSFVec2f, SoSFVec2i32, SoSFVec2s, SoSFVec3d, SoSFVec3f,
                SoSFVec3i32, SoSFVec3s, SoSFVec4d, SoSFVec4f, SoSFVec4i32, SoSFVec4s, SoSField, SoBufferObject>();
}
