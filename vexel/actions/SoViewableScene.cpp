#include <vexel/actions/SoViewableScene.h>

#include <vexel/actions/SoSearchAction.h>
#include <vexel/nodes/SoDirectionalLight.h>
#include <vexel/nodes/SoPerspectiveCamera.h>
#include <vexel/nodes/SoSeparator.h>

namespace {

bool contains(SoNode* graph, SoType type)
{
    SoSearchAction search;
    search.setType(type);
    search.setInterest(SoSearchAction::FIRST);
    search.apply(graph);
    return search.getPath() != nullptr;
}

} // namespace

SoViewableScene::SoViewableScene(SoNode* graph, const SbViewportRegion& region) : m_root(new SoSeparator)
{
    m_root->ref();
    if (!contains(graph, SoCamera::getClassTypeId())) {
        auto* camera = new SoPerspectiveCamera;
        m_root->addChild(camera);
        camera->viewAll(graph, region);
    }
    if (!contains(graph, SoLight::getClassTypeId()))
        m_root->addChild(new SoDirectionalLight);
    m_root->addChild(graph);
}

SoViewableScene::~SoViewableScene()
{
    m_root->unref();
}
