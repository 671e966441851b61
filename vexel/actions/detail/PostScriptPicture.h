#pragma once

class QImage;
class QIODevice;

namespace vexel {

/** Writes a picture as a PostScript page of its size, a point for each pixel; false when that fails. */
bool writePostScript(const QImage& picture, QIODevice& device);

} // namespace vexel
