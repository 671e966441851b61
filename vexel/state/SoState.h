#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include <vexel/base/SbColor.h>
#include <vexel/base/SbMatrix.h>
#include <vexel/base/SbName.h>
#include <vexel/base/SbPlane.h>
#include <vexel/base/SbVec2f.h>
#include <vexel/base/SbVec3f.h>
#include <vexel/base/SbVec4f.h>
#include <vexel/base/SbViewVolume.h>
#include <vexel/base/SbViewportRegion.h>
#include <vexel/base/VexelApi.h>

class SoCamera;
class SoLight;
class SoNode;
class SoTextureCoordinateFunction;

/** Values that a property put into the state: a view of its field, valid while the graph is not changed. */
template <class Value>
struct SoStateList {
    const Value* values = nullptr;
    int num = 0;
    /** The node that the values belong to; null for defaults. */
    const SoNode* source = nullptr;

    bool isEmpty() const { return num == 0; }
    const Value& operator[](int i) const { return values[i]; }
    /** The value at @p i, or the last one. */
    const Value& at(int i) const { return values[i < num ? i : num - 1]; }
};

/** Kinds of properties, one bit each, as far as the override flag of nodes concerns them. */
enum SoOverrideBit : std::uint32_t {
    SO_OVERRIDE_AMBIENT = 1u << 0,
    SO_OVERRIDE_DIFFUSE = 1u << 1,
    SO_OVERRIDE_SPECULAR = 1u << 2,
    SO_OVERRIDE_EMISSIVE = 1u << 3,
    SO_OVERRIDE_SHININESS = 1u << 4,
    SO_OVERRIDE_TRANSPARENCY = 1u << 5,
    SO_OVERRIDE_MATERIAL_BINDING = 1u << 6,
    SO_OVERRIDE_LIGHT_MODEL = 1u << 7,
    SO_OVERRIDE_DRAW_STYLE = 1u << 8,
    SO_OVERRIDE_LINE_WIDTH = 1u << 9,
    SO_OVERRIDE_LINE_PATTERN = 1u << 10,
    SO_OVERRIDE_POINT_SIZE = 1u << 11,
    SO_OVERRIDE_COMPLEXITY = 1u << 12,
    SO_OVERRIDE_SHAPE_HINTS = 1u << 13,
    SO_OVERRIDE_PICK_STYLE = 1u << 14,
    SO_OVERRIDE_FONT = 1u << 15,
    SO_OVERRIDE_NORMAL_BINDING = 1u << 16,
    SO_OVERRIDE_TEXTURE = 1u << 17,
    SO_OVERRIDE_TEXTURE_BINDING = 1u << 18,
    SO_OVERRIDE_POLYGON_OFFSET = 1u << 19,
    SO_OVERRIDE_NORMALS = 1u << 20,
    SO_OVERRIDE_COORDINATES = 1u << 21,
    SO_OVERRIDE_TEXTURE_COORDINATES = 1u << 22,
    SO_OVERRIDE_TRANSPARENCY_TYPE = 1u << 23,
    SO_OVERRIDE_DEPTH_BUFFER = 1u << 24,
    SO_OVERRIDE_ENVIRONMENT = 1u << 25
};

/** What a texture unit does. The numbers of enumerations are those of the nodes that set them. */
struct SoTextureState {
    /** The texture node in force (Texture2, Texture3); null for none. */
    const SoNode* texture = nullptr;
    SbMatrix matrix = SbMatrix::identity();
    /** Computes coordinates from positions; null when the shape's own coordinates count. */
    const SoTextureCoordinateFunction* function = nullptr;
};

/**
 * The values that properties have given so far, on the way of an action to the present node. Plain data that is copied
 * when a separator opens; the values of lists belong to the nodes.
 */
struct SoStateValues {
    static constexpr int NumTextureUnits = 4;

    std::uint32_t overrides = 0;

    SbMatrix model = SbMatrix::identity();
    /** Length of the unit that the last Units node gave. */
    double metersPerUnit = 1;

    SoStateList<SbColor> ambientColor, diffuseColor, specularColor, emissiveColor;
    SoStateList<float> shininess, transparency;
    /** Colours as 0xRRGGBBAA in place of diffuse colours and transparencies; empty for none. */
    SoStateList<std::uint32_t> packedColor;
    SoStateList<std::int32_t> colorIndex;
    /** SoMaterialBinding::Binding. */
    int materialBinding = 0;
    /** SoLightModel::Model. */
    int lightModel = 1;

    SoStateList<SbVec3f> coordinates3;
    /** In force instead of coordinates3 when not empty. */
    SoStateList<SbVec4f> coordinates4;
    SoStateList<SbVec3f> normals;
    SoStateList<SbVec2f> textureCoordinates2;
    SoStateList<SbVec3f> textureCoordinates3;
    /** SoNormalBinding::Binding and SoTextureCoordinateBinding::Binding. */
    int normalBinding = 6;
    int textureCoordinateBinding = 1;

    std::array<SoTextureState, NumTextureUnits> textures;
    int textureUnit = 0;
    /** The bump map in force; null for none. */
    const SoNode* bumpMap = nullptr;

    /** SoDrawStyle::Style; sizes in pixels, 0 for the default of 1. */
    int drawStyle = 0;
    float pointSize = 0;
    float lineWidth = 0;
    std::uint16_t linePattern = 0xffff;
    int linePatternScale = 1;

    /** SoComplexity::Type; values from 0 to 1. */
    int complexityType = 0;
    float complexity = 0.5f;
    float textureQuality = 0.5f;

    /** SoShapeHints enumerations; the crease angle in radians. */
    int vertexOrdering = 0;
    int shapeType = 0;
    int faceType = 1;
    float creaseAngle = 0.5f;

    /** SoPickStyle::Style. */
    int pickStyle = 0;

    SbName fontName{"defaultFont"};
    float fontSize = 10;
    /** SoFontStyle families and styles; -1 when a plain Font node is in force. */
    int fontFamily = -1;
    int fontStyle = 0;

    bool polygonOffsetOn = false;
    float polygonOffsetFactor = 0;
    float polygonOffsetUnits = 0;
    /** SoPolygonOffset::styles. */
    int polygonOffsetStyles = 0;

    /** SoTransparencyType::Type, -1 for the choice of the render action. */
    int transparencyType = -1;
    bool depthTest = true;
    bool depthWrite = true;
    /** SoDepthBuffer::Function. */
    int depthFunction = 0;
    SbVec2f depthRange{0, 1};

    /** The environment node in force; null for the defaults. */
    const SoNode* environment = nullptr;

    const SoCamera* camera = nullptr;
    SbViewVolume viewVolume;
    /** Size of the picture that the camera makes. */
    SbVec2s viewPixels;

    /** Child that the switch above shows; what a switch with SO_SWITCH_INHERIT takes over. */
    int switchChild = -1;
    /** Below an Annotation: drawn last, in front of everything else. */
    bool isAnnotation = false;

    int numLights = 0;
    int numClipPlanes = 0;
};

/** A light as it stands in the world: its node, and the matrix from the node's space to world space. */
struct SoLightState {
    const SoLight* light;
    SbMatrix toWorld;
};

/** A clip plane in world space; what lies on the side that its normal points to is kept. */
struct SoClipPlaneState {
    const SoNode* source;
    SbPlane plane;
};

/** The traversal state of an action: present values, and those to go back to. */
class VEXEL_API SoState {
public:
    SoState();

    SoStateValues* operator->() { return &m_values.back(); }
    const SoStateValues* operator->() const { return &m_values.back(); }
    SoStateValues& operator*() { return m_values.back(); }
    const SoStateValues& operator*() const { return m_values.back(); }

    /** Remembers the present values until the matching pop(). */
    void push();
    void pop();
    int getDepth() const { return static_cast<int>(m_values.size()); }

    /**
     * Asks whether a property may set values of a kind: unless a node above overrides that kind.
     * @param overrides  the asking node has the override flag, so that nothing behind it may set the kind any more
     */
    bool mayChange(SoOverrideBit kind, bool overrides);

    void addLight(const SoLight* light);
    void addClipPlane(const SoNode* source, const SbPlane& worldPlane);
    /** Lights and clip planes in force. */
    const SoLightState& getLight(int i) const { return m_lights[static_cast<std::size_t>(i)]; }
    const SoClipPlaneState& getClipPlane(int i) const { return m_clipPlanes[static_cast<std::size_t>(i)]; }

    /** Where the picture goes; the same for the whole traversal. */
    const SbViewportRegion& getViewportRegion() const { return m_viewport; }
    void setViewportRegion(const SbViewportRegion& region) { m_viewport = region; }
    /** Size of the picture that the view volume in force stands for. */
    SbVec2s getViewPixels() const
    {
        return m_values.back().camera ? m_values.back().viewPixels : m_viewport.getViewportSizePixels();
    }

private:
    std::vector<SoStateValues> m_values;
    std::vector<SoLightState> m_lights;
    std::vector<SoClipPlaneState> m_clipPlanes;
    SbViewportRegion m_viewport;
};
