#pragma once

#include <QImage>

class SoSFImage;

/** Images of fields as pictures. A picture begins at the top, an image field at the bottom. */
namespace ImageTexels {

/** A picture of some size in which each pixel is one of the image's; null of an empty image. Grey stays grey; what has
 * alpha is RGBA, as there is no other picture with alpha. */
QImage sampled(const SoSFImage& image, const QSize& size);
/** All of the image. */
QImage picture(const SoSFImage& image);
/** Grey, grey with alpha, RGB or RGBA, as the picture is. */
void setPicture(SoSFImage& image, const QImage& picture);

} // namespace ImageTexels
