#include "SceneFile.h"

#include <vexel/actions/SoOffscreenRenderArea.h>
#include <vexel/base/SbString.h>
#include <vexel/nodes/SoSeparator.h>

#include <charconv>
#include <optional>

namespace {

constexpr int LargestSide = 16384;

std::optional<SbVec2s> parseSize(const std::string& text)
{
    const char* end = text.data() + text.size();
    int width = 0;
    int height = 0;
    const auto first = std::from_chars(text.data(), end, width);
    if (first.ec != std::errc() || first.ptr == end || *first.ptr != 'x')
        return std::nullopt;
    const auto second = std::from_chars(first.ptr + 1, end, height);
    const bool isInside = width > 0 && height > 0 && width <= LargestSide && height <= LargestSide;
    if (second.ec != std::errc() || second.ptr != end || !isInside)
        return std::nullopt;
    return SbVec2s(static_cast<short>(width), static_cast<short>(height));
}

} // namespace

int runRender(const Arguments& arguments)
{
    Arguments files;
    SbVec2s size(800, 600);
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        if (arguments[i] != "--size") {
            files.push_back(arguments[i]);
            continue;
        }
        const std::optional<SbVec2s> given = ++i < arguments.size() ? parseSize(arguments[i]) : std::nullopt;
        if (!given)
            return complain("--size needs a width and a height from 1 to " + std::to_string(LargestSide) +
                            ", such as 800x600");
        size = *given;
    }
    if (files.size() != 2)
        return complain("render needs a scene and a picture file");
    const SceneFile file(files[0]);
    if (!file.root())
        return file.status();

    auto* area = new SoOffscreenRenderArea;
    area->ref();
    area->setViewportRegion(SbViewportRegion(size));
    area->setBackgroundColor(SbColorRGBA(0.2f, 0.2f, 0.25f, 1));
    area->setSceneGraph(file.root());
    const bool isWritten = area->renderToFile(SbString(files[1]));
    area->unref();
    return isWritten ? file.status() : Unreadable;
}
