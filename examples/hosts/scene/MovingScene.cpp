#include "MovingScene.h"

#include <vexel/engines/SoCalculator.h>
#include <vexel/engines/SoComposeRotation.h>
#include <vexel/engines/SoElapsedTime.h>
#include <vexel/nodes/SoCube.h>
#include <vexel/nodes/SoMaterial.h>
#include <vexel/nodes/SoSeparator.h>
#include <vexel/nodes/SoSphere.h>
#include <vexel/nodes/SoTransform.h>
#include <vexel/nodes/SoTranslation.h>

namespace {

SoSeparator* turningBlock()
{
    auto* clock = new SoElapsedTime;
    auto* turn = new SoComposeRotation;
    turn->axis = SbVec3f(0, 1, 0);
    turn->angle.connectFrom(&clock->timeOut);
    auto* transform = new SoTransform;
    transform->setName("turn");
    transform->rotation.connectFrom(&turn->rotation);

    auto* glow = new SoCalculator;
    glow->a.connectFrom(&clock->timeOut);
    glow->expression = "ta = (1 + sin(2 * a)) / 2; oA = vec3f(0.9, 0.2 + 0.6 * ta, 0.1)";
    auto* material = new SoMaterial;
    material->setName("glow");
    material->diffuseColor.connectFrom(&glow->oA);

    auto* block = new SoCube;
    block->setName("block");
    auto* group = new SoSeparator;
    group->setName("turning");
    group->addChild(transform);
    group->addChild(material);
    group->addChild(block);
    return group;
}

SoSeparator* ball(int number)
{
    auto* place = new SoTranslation;
    place->translation = SbVec3f(1.4f * float(number - MovingScene::Most_balls / 2), 2, 0);
    auto* sphere = new SoSphere;
    sphere->radius = 0.6f;
    auto* group = new SoSeparator;
    group->setName("ball");
    group->addChild(place);
    group->addChild(sphere);
    return group;
}

} // namespace

MovingScene::MovingScene() : m_root(new SoSeparator), m_balls(new SoGroup)
{
    m_root->ref();
    m_root->setName("machine");
    m_root->addChild(turningBlock());
    m_balls->setName("balls");
    m_root->addChild(m_balls);
    while (numBalls() < Most_balls)
        step();
}

MovingScene::~MovingScene()
{
    m_root->unref();
}

int MovingScene::numBalls() const
{
    return m_balls->getNumChildren();
}

void MovingScene::step()
{
    m_grows = m_grows ? numBalls() < Most_balls : numBalls() == 0;
    if (m_grows)
        m_balls->addChild(ball(numBalls()));
    else
        m_balls->removeChild(numBalls() - 1);
}
