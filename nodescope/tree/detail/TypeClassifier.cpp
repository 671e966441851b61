#include "TypeClassifier.h"

#include <vexel/draggers/SoClipPlaneManip.h>
#include <vexel/draggers/SoDirectionalLightManip.h>
#include <vexel/draggers/SoDragger.h>
#include <vexel/draggers/SoPointLightManip.h>
#include <vexel/draggers/SoSpotLightManip.h>
#include <vexel/draggers/SoTransformManip.h>
#include <vexel/nodekits/SoBaseKit.h>
#include <vexel/nodes/SoBackground.h>
#include <vexel/nodes/SoBaseColor.h>
#include <vexel/nodes/SoCallback.h>
#include <vexel/nodes/SoCamera.h>
#include <vexel/nodes/SoColorIndex.h>
#include <vexel/nodes/SoCoordinate3.h>
#include <vexel/nodes/SoCoordinate4.h>
#include <vexel/nodes/SoDrawStyle.h>
#include <vexel/nodes/SoEventCallback.h>
#include <vexel/nodes/SoFont.h>
#include <vexel/nodes/SoLight.h>
#include <vexel/nodes/SoMaterial.h>
#include <vexel/nodes/SoMaterialBinding.h>
#include <vexel/nodes/SoNormal.h>
#include <vexel/nodes/SoPickStyle.h>
#include <vexel/nodes/SoSelection.h>
#include <vexel/nodes/SoShape.h>
#include <vexel/nodes/SoShapeHints.h>
#include <vexel/nodes/SoSwitch.h>
#include <vexel/nodes/SoTexture2.h>
#include <vexel/nodes/SoTexture2Transform.h>
#include <vexel/nodes/SoTexture3.h>
#include <vexel/nodes/SoTextureCoordinate2.h>
#include <vexel/nodes/SoTextureCoordinate3.h>
#include <vexel/nodes/SoTextureCoordinateBinding.h>
#include <vexel/nodes/SoTextureCoordinateFunction.h>
#include <vexel/nodes/SoTransformation.h>
#include <vexel/nodes/SoVertexProperty.h>

namespace {

struct Rule {
    SoType type;
    Nsc::NodeCategory category;
};

// The first rule whose class a type derives from decides: special classes stand before their bases, and draggers, which
// are nodekits, before everything.
template <class... Classes>
void add(std::vector<Rule>& rules, Nsc::NodeCategory category)
{
    (rules.push_back({Classes::getClassTypeId(), category}), ...);
}

std::vector<Rule> makeRules()
{
    std::vector<Rule> rules;
    add<SoDragger>(rules, Nsc::Manipulator);
    add<SoSelection>(rules, Nsc::Selection);
    add<SoSeparator>(rules, Nsc::Separator);
    add<SoSwitch>(rules, Nsc::Switch);
    add<SoGroup>(rules, Nsc::Group);
    add<SoTransformManip>(rules, Nsc::Manipulator);
    add<SoTransformation, SoTexture2Transform>(rules, Nsc::Transform);
    add<SoCallback, SoEventCallback>(rules, Nsc::Callback);
    add<SoShape>(rules, Nsc::Shape);
    add<SoCamera>(rules, Nsc::Camera);
    add<SoDirectionalLightManip, SoPointLightManip, SoSpotLightManip>(rules, Nsc::Manipulator);
    add<SoLight>(rules, Nsc::Light);
    add<SoClipPlaneManip>(rules, Nsc::Manipulator);
    add<SoCoordinate3, SoCoordinate4, SoNormal, SoTextureCoordinate2, SoTextureCoordinate3, SoVertexProperty>(
        rules, Nsc::Topology);
    add<SoMaterial, SoBackground, SoMaterialBinding, SoBaseColor, SoColorIndex, SoDrawStyle, SoFont, SoTexture2,
        SoTexture3, SoTextureCoordinateBinding, SoTextureCoordinateFunction, SoShapeHints, SoPickStyle>(
        rules, Nsc::Appearance);
    add<SoBaseKit>(rules, Nsc::Nodekit);
    return rules;
}

} // namespace

Nsc::NodeCategory classifyType(SoType type)
{
    static const std::vector<Rule> rules = makeRules();
    for (const Rule& rule : rules) {
        if (type.isDerivedFrom(rule.type))
            return rule.category;
    }
    return Nsc::Property;
}
