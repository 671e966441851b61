#include <vexel/nodekits/SoShapeKit.h>

#include <vexel/nodekits/SoNodekitCatalog.h>
#include <vexel/nodekits/detail/CatalogBuilder.h>
#include <vexel/nodes/SoCoordinate3.h>
#include <vexel/nodes/SoCoordinate4.h>
#include <vexel/nodes/SoCube.h>
#include <vexel/nodes/SoMaterialBinding.h>
#include <vexel/nodes/SoNormal.h>
#include <vexel/nodes/SoNormalBinding.h>
#include <vexel/nodes/SoSeparator.h>
#include <vexel/nodes/SoShape.h>
#include <vexel/nodes/SoShapeHints.h>
#include <vexel/nodes/SoTextureCoordinate2.h>
#include <vexel/nodes/SoTextureCoordinateBinding.h>
#include <vexel/nodes/SoTextureCoordinateDefault.h>
#include <vexel/nodes/SoTextureCoordinateFunction.h>
#include <vexel/nodes/SoTransform.h>

const SoNodekitCatalog& SoShapeKit::getClassNodekitCatalog()
{
    static const CatalogBuilder builder =
        CatalogBuilder(SoSeparatorKit::getClassNodekitCatalog(), getClassTypeId())
            .below("topSeparator")
            .part<SoMaterialBinding>("materialBinding")
            .part<SoNormalBinding>("normalBinding")
            .part<SoTextureCoordinateBinding>("textureCoordinateBinding")
            .part<SoShapeHints>("shapeHints")
            .part<SoCoordinate4>("coordinate4")
            .part<SoCoordinate3>("coordinate3")
            .part<SoNormal>("normal")
            .part<SoTextureCoordinate2>("textureCoordinate2")
            .part<SoTextureCoordinateFunction, SoTextureCoordinateDefault>("textureCoordinateFunction")
            .frame<SoSeparator>("shapeSeparator")
            .below("shapeSeparator")
            .part<SoTransform>("localTransform")
            .givenPart<SoShape, SoCube>("shape");
    return builder.catalog();
}
