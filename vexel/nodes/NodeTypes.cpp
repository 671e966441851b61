#include <vexel/nodes/detail/NodeTypes.h>

#include <vexel/nodes/SoAnnotation.h>
#include <vexel/nodes/SoAntiSquish.h>
#include <vexel/nodes/SoArray.h>
#include <vexel/nodes/SoAsciiText.h>
#include <vexel/nodes/SoBackground.h>
#include <vexel/nodes/SoBaseColor.h>
#include <vexel/nodes/SoBufferedShape.h>
#include <vexel/nodes/SoBumpMap.h>
#include <vexel/nodes/SoCallback.h>
#include <vexel/nodes/SoCamera.h>
#include <vexel/nodes/SoClipPlane.h>
#include <vexel/nodes/SoColorIndex.h>
#include <vexel/nodes/SoComplexity.h>
#include <vexel/nodes/SoCone.h>
#include <vexel/nodes/SoCoordinate3.h>
#include <vexel/nodes/SoCoordinate4.h>
#include <vexel/nodes/SoCube.h>
#include <vexel/nodes/SoCylinder.h>
#include <vexel/nodes/SoDepthBuffer.h>
#include <vexel/nodes/SoDirectionalLight.h>
#include <vexel/nodes/SoDrawStyle.h>
#include <vexel/nodes/SoEnvironment.h>
#include <vexel/nodes/SoEventCallback.h>
#include <vexel/nodes/SoExtSelection.h>
#include <vexel/nodes/SoFaceSet.h>
#include <vexel/nodes/SoFile.h>
#include <vexel/nodes/SoFont.h>
#include <vexel/nodes/SoFontStyle.h>
#include <vexel/nodes/SoGradientBackground.h>
#include <vexel/nodes/SoGroup.h>
#include <vexel/nodes/SoImage.h>
#include <vexel/nodes/SoImageBackground.h>
#include <vexel/nodes/SoIndexedFaceSet.h>
#include <vexel/nodes/SoIndexedLineSet.h>
#include <vexel/nodes/SoIndexedPointSet.h>
#include <vexel/nodes/SoIndexedShape.h>
#include <vexel/nodes/SoIndexedTriangleSet.h>
#include <vexel/nodes/SoIndexedTriangleStripSet.h>
#include <vexel/nodes/SoInfo.h>
#include <vexel/nodes/SoInstanceColor.h>
#include <vexel/nodes/SoInstanceParameter.h>
#include <vexel/nodes/SoInstanceTransform.h>
#include <vexel/nodes/SoLOD.h>
#include <vexel/nodes/SoLabel.h>
#include <vexel/nodes/SoLevelOfDetail.h>
#include <vexel/nodes/SoLight.h>
#include <vexel/nodes/SoLightModel.h>
#include <vexel/nodes/SoLineSet.h>
#include <vexel/nodes/SoLocateHighlight.h>
#include <vexel/nodes/SoMarkerSet.h>
#include <vexel/nodes/SoMaterial.h>
#include <vexel/nodes/SoMaterialBinding.h>
#include <vexel/nodes/SoMatrixTransform.h>
#include <vexel/nodes/SoMultipleCopy.h>
#include <vexel/nodes/SoMultipleInstance.h>
#include <vexel/nodes/SoNonIndexedShape.h>
#include <vexel/nodes/SoNormal.h>
#include <vexel/nodes/SoNormalBinding.h>
#include <vexel/nodes/SoOrthographicCamera.h>
#include <vexel/nodes/SoPackedColor.h>
#include <vexel/nodes/SoPathSwitch.h>
#include <vexel/nodes/SoPerspectiveCamera.h>
#include <vexel/nodes/SoPickStyle.h>
#include <vexel/nodes/SoPointLight.h>
#include <vexel/nodes/SoPointSet.h>
#include <vexel/nodes/SoPolygonOffset.h>
#include <vexel/nodes/SoQuadMesh.h>
#include <vexel/nodes/SoResetTransform.h>
#include <vexel/nodes/SoRotation.h>
#include <vexel/nodes/SoRotationXYZ.h>
#include <vexel/nodes/SoScale.h>
#include <vexel/nodes/SoSelection.h>
#include <vexel/nodes/SoSeparator.h>
#include <vexel/nodes/SoShaderParameter.h>
#include <vexel/nodes/SoShape.h>
#include <vexel/nodes/SoShapeHints.h>
#include <vexel/nodes/SoSphere.h>
#include <vexel/nodes/SoSpotLight.h>
#include <vexel/nodes/SoSurroundScale.h>
#include <vexel/nodes/SoSwitch.h>
#include <vexel/nodes/SoText2.h>
#include <vexel/nodes/SoText3.h>
#include <vexel/nodes/SoTexture2.h>
#include <vexel/nodes/SoTexture2Transform.h>
#include <vexel/nodes/SoTexture3.h>
#include <vexel/nodes/SoTextureCoordinate2.h>
#include <vexel/nodes/SoTextureCoordinate3.h>
#include <vexel/nodes/SoTextureCoordinateBinding.h>
#include <vexel/nodes/SoTextureCoordinateDefault.h>
#include <vexel/nodes/SoTextureCoordinateEnvironment.h>
#include <vexel/nodes/SoTextureCoordinateFunction.h>
#include <vexel/nodes/SoTextureCoordinatePlane.h>
#include <vexel/nodes/SoTextureMatrixTransform.h>
#include <vexel/nodes/SoTextureUnit.h>
#include <vexel/nodes/SoTransform.h>
#include <vexel/nodes/SoTransformSeparator.h>
#include <vexel/nodes/SoTransformation.h>
#include <vexel/nodes/SoTranslation.h>
#include <vexel/nodes/SoTransparencyType.h>
#include <vexel/nodes/SoTriangleSet.h>
#include <vexel/nodes/SoTriangleStripSet.h>
#include <vexel/nodes/SoUniformShaderParameter.h>
#include <vexel/nodes/SoUnits.h>
#include <vexel/nodes/SoUnknownNode.h>
#include <vexel/nodes/SoVertexProperty.h>
#include <vexel/nodes/SoVertexShape.h>
#include <vexel/nodes/SoWWWAnchor.h>
#include <vexel/nodes/SoWWWInline.h>

namespace {

template <class... Nodes>
void registerAll()
{
    (Nodes::getClassTypeId(), ...);
}

} // namespace

// One line for each family; a class that is missing here can be written, but not read.
void registerNodeTypes()
{
    registerAll<SoGroup, SoSeparator, SoTransformSeparator, SoAnnotation, SoSwitch, SoPathSwitch, SoLOD,
                SoLevelOfDetail, SoArray, SoMultipleCopy, SoMultipleInstance, SoSelection, SoExtSelection,
                SoLocateHighlight, SoFile, SoWWWInline, SoWWWAnchor, SoCallback, SoEventCallback>();
    registerAll<SoMaterial, SoBaseColor, SoPackedColor, SoColorIndex, SoMaterialBinding, SoLightModel, SoDrawStyle,
                SoPolygonOffset, SoComplexity, SoShapeHints, SoPickStyle, SoFont, SoFontStyle, SoTransparencyType,
                SoDepthBuffer, SoEnvironment, SoClipPlane, SoBackground, SoGradientBackground, SoImageBackground>();
    registerAll<SoNormal, SoNormalBinding, SoCoordinate3, SoCoordinate4, SoTextureCoordinate2, SoTextureCoordinate3,
                SoTextureCoordinateBinding, SoVertexProperty>();
    registerAll<SoTextureCoordinateFunction, SoTextureCoordinateDefault, SoTextureCoordinatePlane,
                SoTextureCoordinateEnvironment, SoTextureUnit, SoTexture2, SoTexture3, SoTexture2Transform,
                SoTextureMatrixTransform, SoBumpMap>();
    registerAll<SoTransformation, SoTransform, SoMatrixTransform, SoRotationXYZ, SoRotation, SoTranslation, SoScale,
                SoUnits, SoResetTransform, SoAntiSquish, SoSurroundScale>();
    registerAll<SoCamera, SoPerspectiveCamera, SoOrthographicCamera, SoLight, SoDirectionalLight, SoPointLight,
                SoSpotLight>();
    registerAll<SoShape, SoCube, SoSphere, SoCylinder, SoCone, SoVertexShape, SoNonIndexedShape, SoIndexedShape,
                SoPointSet, SoIndexedPointSet, SoMarkerSet, SoLineSet, SoIndexedLineSet, SoFaceSet, SoIndexedFaceSet,
                SoTriangleSet, SoIndexedTriangleSet, SoTriangleStripSet, SoIndexedTriangleStripSet, SoQuadMesh, SoText2,
                SoText3, SoAsciiText, SoImage, SoBufferedShape>();
    registerAll<SoShaderParameter, SoUniformShaderParameter, SoInstanceParameter, SoInstanceTransform,
                SoInstanceColor>();
    registerAll<SoInfo, SoLabel, SoUnknownNode>();
}
