#include "ImagePreview.h"

#include "ImageTexels.h"

#include <QPainter>

namespace {

/** So many samples in each direction make a pixel of an image that is scaled down. */
constexpr int Samples = 2;
constexpr int Square = 8;
const QColor Dark_square(110, 110, 110);
const QColor Light_square(150, 150, 150);

void fillChequered(QPainter& painter, const QRect& place)
{
    painter.fillRect(place, Dark_square);
    for (int y = 0; y < place.height(); y += Square) {
        for (int x = y / Square % 2 * Square; x < place.width(); x += 2 * Square)
            painter.fillRect(QRect(place.left() + x, place.top() + y, Square, Square) & place, Light_square);
    }
}

} // namespace

ImagePreview::ImagePreview(QWidget* parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void ImagePreview::setImage(const SoSFImage* image)
{
    if (image != m_image.get())
        m_image.set(const_cast<SoSFImage*>(image)); // to learn of its end
    m_scaledFor = QSize();
    update();
}

QSize ImagePreview::sizeHint() const
{
    return {fontMetrics().height() * 12, fontMetrics().height() * 12};
}

QSize ImagePreview::minimumSizeHint() const
{
    return sizeHint() / 3;
}

void ImagePreview::scale()
{
    m_scaledFor = size();
    m_scaled = QPixmap();
    const SoSFImage* const image = m_image.get();
    if (!image || image->isEmpty())
        return;
    const QSize all(image->getSize()[0], image->getSize()[1]);
    const QSize place = size() * devicePixelRatioF();
    const QSize shown = all.scaled(place, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
    const bool isReduced = shown.width() < all.width();
    const QSize samples = isReduced ? (shown * Samples).boundedTo(all) : shown;
    m_scaled = QPixmap::fromImage(
        ImageTexels::sampled(*image, samples).scaled(shown, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    m_scaled.setDevicePixelRatio(devicePixelRatioF());
}

void ImagePreview::paintEvent(QPaintEvent*)
{
    if (m_scaledFor != size())
        scale();
    if (m_scaled.isNull())
        return;
    const QSize shown = (QSizeF(m_scaled.size()) / m_scaled.devicePixelRatioF()).toSize();
    const QRect place(QPoint((width() - shown.width()) / 2, 0), shown);
    QPainter painter(this);
    if (m_scaled.hasAlpha())
        fillChequered(painter, place);
    painter.drawPixmap(place.topLeft(), m_scaled);
}
