#include "SceneView.h"

#include <string>

#include <vexel/io/SoDB.h>
#include <vexel/io/SoInput.h>
#include <vexel/nodes/SoSeparator.h>

using namespace vexel;

void SceneView::SetUp()
{
    SoDB::init();
    std::string error;
    m_context = GLContext::create(error);
    ASSERT_TRUE(m_context) << error;
    m_scope = std::make_unique<GLContext::Scope>(*m_context);
    m_target = std::make_unique<OffscreenTarget>(Size, Size);
    action = std::make_unique<SoGLRenderAction>(region);
    read("");
}

void SceneView::TearDown()
{
    if (action)
        action->releaseGraphics();
    action.reset();
    if (root)
        root->unref();
    m_target.reset();
    m_scope.reset();
}

void SceneView::read(const char* nodes)
{
    if (root)
        root->unref();
    const std::string text = "#Vexel V2.1 ascii\n"
                             "OrthographicCamera { position 0 0 5 nearDistance 1 farDistance 9 height 2 }\n"
                             "LightModel { model BASE_COLOR }\n" +
                             std::string(nodes);
    SoInput in;
    in.setBuffer(text.data(), text.size());
    root = SoDB::readAll(&in);
    ASSERT_TRUE(root);
    root->ref();
}

QImage SceneView::draw(SoGLRenderAction& with)
{
    return draw(with, root);
}

QImage SceneView::draw(SoGLRenderAction& with, SoNode* graph)
{
    m_target->bind();
    with.apply(graph);
    return m_target->image();
}

QColor SceneView::pixel(const QImage& picture, float x, float y)
{
    return picture.pixelColor(int((x + 1) / 2 * Size), int((1 - y) / 2 * Size));
}

QColor SceneView::at(float x, float y)
{
    return pixel(draw(), x, y);
}
