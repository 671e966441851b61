#pragma once

#include <plotkit/PlotkitApi.h>
#include <plotkit/u3d/U3DMesh.h>
#include <plotkit/u3d/U3DModelPalette.h>
#include <plotkit/u3d/U3DShading.h>
#include <vexel/base/SbMatrix.h>

class QIODevice;

/** What a light of a document does; it stands at the origin of its node and shines along the negative z axis. */
struct U3DLight {
    enum Type : std::uint8_t { Ambient = 0, Directional = 1, Point = 2, Spot = 3 };
    Type type = Directional;
    SbVec3f color;
    /** Loss of light at once, by distance, and by squared distance. */
    SbVec3f attenuation{1, 0, 0};
    float coneAngle = 180; ///< from edge to edge of a spot's cone, in degrees
    bool decays = false;   ///< to the edge of the cone
    float intensity = 1;
};

/** What a camera of a document sees; it stands at the origin of its node, looks along -z and has y up. */
struct U3DView {
    bool isPerspective = true;
    float height = 45; ///< an angle in degrees where it is perspective, otherwise a length
    float nearDistance = 1;
    float farDistance = 10;
    float pixelWidth = 1;
    float pixelHeight = 1;
};

/**
 * A file of ECMA-363 in the making: nodes, which are named and stand below one another, and what they show. Names of
 * nodes are given here, like the wanted ones; parents are told by them, and the empty name is the world.
 */
class U3DDocument {
public:
    std::string addGroup(std::string_view wanted, const std::string& parent, const SbMatrix& matrix);
    /**
     * @param resource  of one kind; equal ones are written once
     * @param shadings  one for each that the resource numbers
     * @param showsBacks  of faces
     */
    void addModel(std::string_view wanted, const std::string& parent, const SbMatrix& matrix, U3DModelKind kind,
                  U3DModelResource resource, const std::vector<U3DShading>& shadings, bool showsBacks = true);
    void addLight(std::string_view wanted, const std::string& parent, const SbMatrix& matrix, const U3DLight& light);
    void addView(std::string_view wanted, const std::string& parent, const SbMatrix& matrix, const U3DView& view);

    /** False when the device does not take it, or something is larger than the format allows: 4 GB for a mesh. */
    bool write(QIODevice& device) const;

private:
    void appendNode(std::string_view name, U3DBlockType type, U3DBitStream data);

    U3DNames m_nodeNames;
    U3DBytes m_groups;
    U3DBytes m_nodes;
    U3DModelPalette m_models;
    U3DShadingPalette m_shadings;
    U3DBytes m_lights;
    U3DBytes m_views;
};
