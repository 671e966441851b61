#pragma once

#include <optional>
#include <vector>

#include <vexel/render/RenderOptions.h>
#include <vexel/render/detail/DrawPlan.h>
#include <vexel/render/detail/GeometryStore.h>
#include <vexel/render/detail/ProgramCache.h>
#include <vexel/render/detail/SurroundingsStore.h>
#include <vexel/render/detail/TextureStore.h>

namespace vexel {

/** How a run of draw commands reaches the target. */
struct DrawPass {
    ProgramKey::Output output = ProgramKey::Opaque;
    std::optional<bool> depthWrite;        ///< instead of what the packets ask for
    std::optional<bool> depthTest;         ///< instead of what the packets ask for
    std::optional<RenderStyle::Draw> draw; ///< instead of what the packets ask for
    bool multisampled = false;             ///< for Layer: the target has several samples per pixel
    bool textures = true;
    bool lighting = true;
    SbVec4f color{1, 1, 1, 1};                ///< for OneColor
    std::optional<std::uint16_t> linePattern; ///< instead of what the packets ask for, a pixel for each bit
    float lineWidth = 0; ///< above 0: instead of what the packets ask for, and the least size of points
};

/** Sets state and issues draw calls. State is set only where it differs from that of the command before. */
class PacketDrawer {
public:
    PacketDrawer(GeometryStore& geometries, ProgramCache& programs, TextureStore& textures,
                 SurroundingsStore& surroundings);

    /** Makes a camera the current one of all programs. */
    void setCamera(const Camera& camera);

    /** Draws the commands; their records are looked up in `instanceBuffer`. */
    void draw(const DrawListData& list, const std::vector<DrawCommand>& commands, unsigned instanceBuffer,
              const DrawPass& pass);

    void clear();

private:
    using Part = GeometryBuffers::Part;

    /** What must be equal for two commands to need no change of state between them. */
    struct Bound {
        std::uint32_t state;
        bool shiny;
        bool mirrored;
        bool normals;
        bool colors;
        bool signs;
        RenderPrimitive primitive;
        bool operator==(const Bound& other) const;
    };

    ProgramKey keyFor(const Bound& bound, const RenderState& state, Part part, const DrawPass& pass) const;
    void applyState(const RenderState& state, const Bound& bound, const DrawPass& pass) const;
    void applyTexture(const RenderTexture& texture, const ProgramUniforms& uniforms, int number);
    void applyProgram(const RenderState& state, const ProgramKey& key, const DrawPass& pass);

    GeometryStore& m_geometries;
    ProgramCache& m_programs;
    TextureStore& m_textures;
    SurroundingsStore& m_surroundings;
    unsigned m_frameBlock = 0;
};

} // namespace vexel
