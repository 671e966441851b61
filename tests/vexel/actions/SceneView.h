#pragma once

#include <gtest/gtest.h>

#include <memory>

#include <QtGui/QImage>

#include <vexel/actions/SoGLRenderAction.h>
#include <vexel/render/GLContext.h>
#include <vexel/render/OffscreenTarget.h>

class SoNode;
class SoSeparator;

/** A scene in front of a camera that sees x and y from -1 to 1, drawn off screen. */
class SceneView : public testing::Test {
protected:
    static constexpr int Size = 64;

    void SetUp() override;
    void TearDown() override;

    /** Reads nodes behind the camera; a light model without light is in force. */
    void read(const char* nodes);
    QImage draw(SoGLRenderAction& with);
    QImage draw(SoGLRenderAction& with, SoNode* graph);
    QImage draw() { return draw(*action); }
    /** Draws and answers the pixel at a place from -1 to 1. */
    QColor at(float x, float y);
    static QColor pixel(const QImage& picture, float x, float y);

    SoSeparator* root = nullptr;
    SbViewportRegion region{Size, Size};
    std::unique_ptr<SoGLRenderAction> action;

private:
    std::unique_ptr<vexel::GLContext> m_context;
    std::unique_ptr<vexel::GLContext::Scope> m_scope;
    std::unique_ptr<vexel::OffscreenTarget> m_target;
};

#define EXPECT_COLOR(color, r, g, b)                                                                                   \
    do {                                                                                                               \
        const QColor seen = (color);                                                                                   \
        EXPECT_NEAR(seen.red(), r, 3) << seen.name().toStdString();                                                    \
        EXPECT_NEAR(seen.green(), g, 3) << seen.name().toStdString();                                                  \
        EXPECT_NEAR(seen.blue(), b, 3) << seen.name().toStdString();                                                   \
    } while (false)
