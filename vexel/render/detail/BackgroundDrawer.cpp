#include <vexel/render/detail/BackgroundDrawer.h>

#include <cmath>

#include <epoxy/gl.h>

#include <vexel/render/RenderTexture.h>
#include <vexel/render/detail/TextureStore.h>

namespace vexel {

namespace {

const char* const GradientFragment = R"(
uniform vec4 bottom;
uniform vec4 top;
uniform vec4 window;
void main()
{
    vec4 color = mix(bottom, top, mix(window.y, window.w, place.y));
    // Half a step of noise hides the bands of slow gradients.
    float noise = fract(sin(dot(gl_FragCoord.xy, vec2(12.9898, 78.233))) * 43758.5453) - 0.5;
    result = vec4(clamp(color.rgb + noise / 255.0, 0.0, 1.0) * color.a, color.a);
}
)";

const char* const ImageFragment = R"(
uniform sampler2D image;
uniform vec4 window;
uniform vec2 scale;
uniform vec2 shift;
uniform bool tiled;
void main()
{
    vec2 at = mix(window.xy, window.zw, place) * scale + shift;
    if (!tiled && (any(lessThan(at, vec2(0.0))) || any(greaterThan(at, vec2(1.0)))))
        discard;
    vec4 texel = texture(image, at);
    result = vec4(texel.rgb * texel.a, texel.a);
}
)";

} // namespace

ScissorScope::ScissorScope(const RenderViewport& viewport)
{
    glEnable(GL_SCISSOR_TEST);
    glScissor(viewport.x, viewport.y, viewport.width, viewport.height);
}

ScissorScope::~ScissorScope()
{
    glDisable(GL_SCISSOR_TEST);
}

BackgroundDrawer::BackgroundDrawer() : m_gradient(GradientFragment), m_image(ImageFragment) {}

void BackgroundDrawer::draw(const RenderBackground& background, const RenderView& from, TextureStore& textures)
{
    RenderView view = from;
    if (view.frame)
        view.viewport = view.frame->whole;
    const ScissorScope scissor(view.viewport);
    glViewport(view.viewport.x, view.viewport.y, view.viewport.width, view.viewport.height);
    glDepthMask(GL_TRUE);
    const SbVec4f& color = background.color;
    glClearColor(color[0] * color[3], color[1] * color[3], color[2] * color[3], color[3]);
    const bool covers = background.kind != RenderBackground::Kind::None;
    glClear(GL_DEPTH_BUFFER_BIT | (covers ? GL_COLOR_BUFFER_BIT : 0));
    if (background.kind == RenderBackground::Kind::Gradient) {
        m_gradient.use();
        glDisable(GL_BLEND);
        glUniform4fv(m_gradient.uniform("bottom"), 1, &color[0]);
        glUniform4fv(m_gradient.uniform("top"), 1, &background.topColor[0]);
        glUniform4fv(m_gradient.uniform("window"), 1, view.window.data());
        m_gradient.draw();
    } else if (background.kind > RenderBackground::Kind::Gradient && background.image) {
        drawImage(background, view, textures);
    }
}

void BackgroundDrawer::drawImage(const RenderBackground& background, const RenderView& view, TextureStore& textures)
{
    RenderTexture texture;
    texture.image = background.image;
    if (background.kind != RenderBackground::Kind::Tiled)
        texture.wrapS = texture.wrapT = RenderTexture::Wrap::Clamp;
    texture.filter = background.kind == RenderBackground::Kind::Stretched ? RenderTexture::Filter::Mipmap
                                                                          : RenderTexture::Filter::Nearest;
    m_image.use();
    glActiveTexture(GL_TEXTURE0);
    textures.bind(texture);
    float scale[2] = {1, 1};
    float shift[2] = {0, 0};
    if (background.kind != RenderBackground::Kind::Stretched) {
        const float picture[2] = {view.viewport.width / (view.window[2] - view.window[0]),
                                  view.viewport.height / (view.window[3] - view.window[1])};
        scale[0] = picture[0] / background.image->width();
        scale[1] = picture[1] / background.image->height();
    }
    if (background.kind == RenderBackground::Kind::Placed) {
        // By whole pixels, so that none of the image are lost.
        const float size[2] = {static_cast<float>(background.image->width()),
                               static_cast<float>(background.image->height())};
        for (int axis = 0; axis < 2; ++axis)
            shift[axis] = -std::floor((scale[axis] - 1) * size[axis] * background.place[axis]) / size[axis];
    }
    glEnable(GL_BLEND);
    glBlendFunc(GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
    glUniform1i(m_image.uniform("image"), 0);
    glUniform1i(m_image.uniform("tiled"), background.kind == RenderBackground::Kind::Tiled);
    glUniform4fv(m_image.uniform("window"), 1, view.window.data());
    glUniform2fv(m_image.uniform("scale"), 1, scale);
    glUniform2fv(m_image.uniform("shift"), 1, shift);
    m_image.draw();
    glDisable(GL_BLEND);
}

void BackgroundDrawer::drawFrame(const RenderFrame& frame, const RenderViewport& picture)
{
    if (frame.kind == RenderFrame::Kind::None)
        return;
    const RenderViewport& whole = frame.whole;
    const bool isLine = frame.kind == RenderFrame::Kind::Line;
    // Four stripes: outside of the picture, or along its border.
    const int left = isLine ? 1 : picture.x - whole.x;
    const int bottom = isLine ? 1 : picture.y - whole.y;
    const int right = isLine ? 1 : whole.x + whole.width - picture.x - picture.width;
    const int top = isLine ? 1 : whole.y + whole.height - picture.y - picture.height;
    const RenderViewport& around = isLine ? picture : whole;
    const RenderViewport stripes[] = {{around.x, around.y, left, around.height},
                                      {around.x + around.width - right, around.y, right, around.height},
                                      {around.x, around.y, around.width, bottom},
                                      {around.x, around.y + around.height - top, around.width, top}};
    glClearColor(0.5f, 0.5f, 0.5f, 1);
    for (const RenderViewport& stripe : stripes) {
        if (stripe.width <= 0 || stripe.height <= 0)
            continue;
        const ScissorScope scissor(stripe);
        glClear(GL_COLOR_BUFFER_BIT);
    }
}

void BackgroundDrawer::release()
{
    m_gradient.release();
    m_image.release();
}

} // namespace vexel
