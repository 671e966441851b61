#include "SoVectorizeAction.h"
#include "SoVectorOutput.h"

#include <plotkit/scene/PicturePainter.h>
#include <plotkit/scene/PrimitiveCollector.h>
#include <vexel/actions/SoViewableScene.h>
#include <vexel/nodes/SoSeparator.h>

#include <algorithm>

SoVectorizeAction::SoVectorizeAction(SoVectorOutput& output) : m_output(output) {}

SoVectorizeAction::~SoVectorizeAction() = default;

void SoVectorizeAction::setPageSize(double width, double height)
{
    m_width = width;
    m_height = height;
}

PageLayout SoVectorizeAction::layOut() const
{
    const SbVec2s pixels = m_region.getViewportSizePixels();
    const double scale = std::min((m_width - 2 * m_margin) / std::max<double>(pixels[0], 1),
                                  (m_height - 2 * m_margin) / std::max<double>(pixels[1], 1));
    PageLayout page{m_width, m_height, {}};
    page.picture.width = std::max(scale, 0.0) * pixels[0];
    page.picture.height = std::max(scale, 0.0) * pixels[1];
    page.picture.left = (m_width - page.picture.width) / 2;
    page.picture.bottom = (m_height - page.picture.height) / 2;
    return page;
}

void SoVectorizeAction::apply(SoNode* root)
{
    if (!root || !m_output.isOpen())
        return;
    root->ref();
    if (!draw(*root, m_output.sink()))
        m_output.cancelFile();
    root->unrefNoDelete();
}

bool SoVectorizeAction::draw(SoNode& root, PictureSink& sink) const
{
    const PageLayout page = layOut();
    const SoViewableScene view(&root, m_region);
    PrimitiveCollector collector(page.picture, m_region);
    collector.apply(view.root());
    sink.begin(page);
    std::optional<PrimitiveCollector::Background> background = collector.background();
    if (!background && m_backgroundColor) {
        const SbColorRGBA& color = *m_backgroundColor;
        const PageColor even{color[0], color[1], color[2], color[3]};
        background = PrimitiveCollector::Background{even, even};
    }
    if (m_drawsBackground && background)
        sink.ground(background->bottom, background->top);
    PicturePainter painter(sink, m_progress);
    if (!painter.paint(collector.scene()) || !painter.paint(collector.annotations()))
        return false;
    return sink.end();
}
