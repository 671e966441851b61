#include "U3DCollector.h"

#include "U3DLights.h"
#include "U3DShape.h"

#include <vexel/nodes/SoCamera.h>
#include <vexel/nodes/SoLight.h>
#include <vexel/nodes/SoShape.h>

#include <cmath>
#include <utility>

namespace {

constexpr double Degrees_per_radian = 57.29577951308232;

bool isFinite(const SbMatrix& matrix)
{
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 4; ++column) {
            if (!std::isfinite(matrix[row][column]))
                return false;
        }
    }
    return true;
}

std::string_view nameOf(const SoNode& node)
{
    return node.getName().isEmpty() ? node.getTypeId().getName().getView() : node.getName().getView();
}

} // namespace

U3DCollector::U3DCollector(U3DDocument& document, const SbViewportRegion& region, const SoNode* frame,
                           U3DProgress& progress)
    : m_document(document), m_frame(frame), m_progress(progress)
{
    state().setViewportRegion(region);
}

void U3DCollector::beginTraversal()
{
    m_levels.assign(1, {});
    m_levels.back().isWritten = true;
    m_hasAmbientLight = false;
}

void U3DCollector::visitNode(SoNode& node)
{
    const bool isGroup = node.getChildren() && &node != m_frame;
    if (isGroup)
        enter(node);
    if (node.isOfType(SoLight::getClassTypeId()))
        addLight(static_cast<const SoLight&>(node));
    SoAction::visitNode(node);
    if (isGroup)
        m_levels.pop_back();
}

void U3DCollector::enter(const SoNode& group)
{
    const Level& above = m_levels.back();
    Level level;
    level.node = &group;
    level.world = above.world;
    level.inverse = above.inverse;
    const SbMatrix& model = state()->model;
    // What a matrix without an inverse makes flat, the nodes below make flat for themselves.
    if (model != above.world && model.isInvertible()) {
        level.local = fromGroup(model);
        // Not the matrix itself, so that rounding does not add up from level to level.
        level.world = level.local * above.world;
        level.inverse = level.world.inverse();
    }
    m_levels.push_back(std::move(level));
}

/** The group that new nodes stand in, which is written when the first of them comes. */
const std::string& U3DCollector::parentName()
{
    std::size_t first = m_levels.size();
    while (!m_levels[first - 1].isWritten)
        --first;
    for (; first < m_levels.size(); ++first) {
        Level& level = m_levels[first];
        level.name = m_document.addGroup(nameOf(*level.node), m_levels[first - 1].name, level.local);
        level.isWritten = true;
    }
    return m_levels.back().name;
}

void U3DCollector::visitShape(SoShape& shape)
{
    if (!m_hasAmbientLight)
        addAmbientLight();
    if (isFinite(fromGroup(state()->model))) {
        const U3DShape built(state(), shape);
        addMesh(shape, built);
        addLines(shape, built);
    }
    if (m_progress.isCanceled() || !m_progress.finishShape())
        setTerminated(true);
}

void U3DCollector::addMesh(const SoShape& shape, const U3DShape& built)
{
    U3DMesh mesh = built.mesh(m_progress);
    if (mesh.faces.empty())
        return;
    const U3DShading shading = built.meshShading(mesh);
    if (!shading.hasVertexColors)
        mesh.colors.clear();
    m_document.addModel(nameOf(shape), parentName(), fromGroup(state()->model), U3DModelKind::Mesh,
                        encodeU3DMesh(mesh, m_progress), {shading}, built.showsBacks());
}

void U3DCollector::addLines(const SoShape& shape, const U3DShape& built)
{
    std::vector<U3DShading> shadings;
    SbVec3f origin;
    const U3DLineSet lineSet = built.lineSet(shadings, origin, m_progress);
    if (lineSet.lines.empty())
        return;
    SbMatrix place;
    place.setTranslate(origin);
    m_document.addModel(nameOf(shape), parentName(), fromGroup(place * state()->model), U3DModelKind::LineSet,
                        encodeU3DLineSet(lineSet, m_progress), shadings);
}

void U3DCollector::addLight(const SoLight& light)
{
    if (!light.on.getValue() || light.on.isIgnored())
        return;
    const SbMatrix matrix = fromGroup(u3dLightPlace(light) * state()->model);
    if (isFinite(matrix))
        m_document.addLight(nameOf(light), parentName(), matrix, u3dLight(light, state()));
}

/** That of the first shape. */
void U3DCollector::addAmbientLight()
{
    m_hasAmbientLight = true;
    m_document.addLight("Ambient", "", SbMatrix(), u3dAmbientLight(state()));
}

void U3DCollector::visitCamera(const SoCamera& camera)
{
    const SbViewVolume& volume = state()->viewVolume;
    U3DView view;
    view.isPerspective = volume.getProjectionType() == SbViewVolume::PERSPECTIVE;
    view.nearDistance = volume.getNearDist();
    view.farDistance = volume.getNearDist() + volume.getDepth();
    view.height = volume.getHeight();
    if (view.isPerspective)
        view.height = float(2 * std::atan2(double(view.height) / 2, double(view.nearDistance)) * Degrees_per_radian);
    const SbVec2s pixels = state().getViewPixels();
    view.pixelWidth = pixels[0];
    view.pixelHeight = pixels[1];
    const SbMatrix matrix = volume.getCameraSpaceMatrix().inverse();
    if (isFinite(matrix) && std::isfinite(view.height) && std::isfinite(view.farDistance))
        m_document.addView(nameOf(camera), "", matrix, view);
}
