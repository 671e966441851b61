#include <vexel/viewer/detail/ViewerScene.h>

#include <vexel/actions/SoGetBoundingBoxAction.h>
#include <vexel/actions/SoSearchAction.h>
#include <vexel/base/SoPath.h>
#include <vexel/nodes/SoDirectionalLight.h>
#include <vexel/nodes/SoOrthographicCamera.h>
#include <vexel/nodes/SoPerspectiveCamera.h>
#include <vexel/nodes/SoRotation.h>
#include <vexel/nodes/SoSeparator.h>
#include <vexel/nodes/SoTransformSeparator.h>
#include <vexel/viewer/detail/CameraState.h>

#include <algorithm>
#include <cmath>

ViewerScene::ViewerScene()
    : m_root(new SoSeparator), m_lightRotation(new SoRotation), m_headlight(new SoDirectionalLight),
      m_ownCamera(new SoPerspectiveCamera)
{
    m_root->ref();
    m_ownCamera->ref();
    m_sceneCamera.setDeleteCallback(cameraGone, this);
    auto* lights = new SoTransformSeparator;
    m_headlight->direction = SbVec3f(0.25f, -0.35f, -1);
    lights->addChild(m_lightRotation);
    lights->addChild(m_headlight);
    m_root->addChild(lights);
    m_root->addChild(m_ownCamera);
}

ViewerScene::~ViewerScene()
{
    setScene(nullptr);
    m_ownCamera->unref();
    m_root->unref();
}

void ViewerScene::useSceneCamera(SoCamera* sceneCamera)
{
    camera()->resetViewDistances();
    m_sceneCamera.set(sceneCamera);
}

void ViewerScene::cameraGone(void* scene, SoSensor*)
{
    auto& self = *static_cast<ViewerScene*>(scene);
    self.m_root->insertChild(self.m_ownCamera, self.m_root->findChild(self.m_scene));
}

void ViewerScene::setScene(SoNode* scene)
{
    if (scene)
        scene->ref();
    if (m_scene) {
        m_root->removeChild(m_scene);
        m_scene->unref();
    }
    m_scene = scene;
    const int own = m_root->findChild(m_ownCamera);
    if (own >= 0)
        m_root->removeChild(own);
    useSceneCamera(nullptr);
    if (m_scene) {
        SoSearchAction search;
        search.setType(SoCamera::getClassTypeId());
        search.apply(m_scene);
        if (search.getPath())
            useSceneCamera(static_cast<SoCamera*>(search.getPath()->getNode(search.getPath()->getFullLength() - 1)));
    }
    if (usesOwnCamera())
        m_root->addChild(m_ownCamera);
    if (m_scene)
        m_root->addChild(m_scene);
}

void ViewerScene::addCameraToScene()
{
    if (!m_scene || !m_scene->isOfType(SoGroup::getClassTypeId()))
        return;
    static_cast<SoGroup*>(m_scene)->insertChild(new SoPerspectiveCamera, 0);
    setScene(m_scene);
}

void ViewerScene::toggleProjection()
{
    if (!usesOwnCamera())
        return;
    CameraState state(*m_ownCamera);
    SoCamera* other = nullptr;
    if (m_ownCamera->isOfType(SoPerspectiveCamera::getClassTypeId())) {
        const float angle = static_cast<SoPerspectiveCamera*>(m_ownCamera)->heightAngle.getValue();
        state.height = 2 * state.focalDistance * std::tan(angle / 2);
        other = new SoOrthographicCamera;
    } else {
        auto* perspective = new SoPerspectiveCamera;
        const float distance = state.height / 2 / std::tan(perspective->heightAngle.getValue() / 2);
        SbVec3f direction;
        state.orientation.multVec(SbVec3f(0, 0, -1), direction);
        state.position = state.position + direction * (state.focalDistance - distance);
        state.focalDistance = distance;
        other = perspective;
    }
    state.applyTo(*other);
    other->ref();
    m_root->replaceChild(m_ownCamera, other);
    SoCamera* const before = m_ownCamera;
    m_ownCamera = other;
    before->unref();
}

void ViewerScene::setHeadlight(bool on)
{
    m_headlight->on = on;
}

bool ViewerScene::hasHeadlight() const
{
    return m_headlight->on.getValue();
}

void ViewerScene::prepareFrame(const SbViewportRegion& region)
{
    // A value that stays is not set again: the picture that is being drawn must not ask for another one.
    SoCamera& view = *camera();
    const SbRotation& orientation = view.orientation.getValue();
    if (!(m_lightRotation->rotation.getValue() == orientation))
        m_lightRotation->rotation = orientation;
    if (!m_scene)
        return;
    SoGetBoundingBoxAction action(region);
    action.apply(m_scene);
    const SbBox3f& box = action.getBoundingBox();
    if (box.isEmpty())
        return;
    SbVec3f direction;
    orientation.multVec(SbVec3f(0, 0, -1), direction);
    const float middle = direction.dot(box.getCenter() - view.position.getValue());
    const float radius = std::max(box.getSize().length() / 2, 1e-6f) * 1.01f;
    const float farthest = std::max(middle + radius, 1e-5f);
    // Depth is kept well for a ratio of ten thousand between far and near.
    const bool isPerspective = view.isOfType(SoPerspectiveCamera::getClassTypeId());
    view.setViewDistances(isPerspective ? std::max(middle - radius, farthest * 1e-4f) : middle - radius, farthest);
}
