#pragma once

#include <QPixmap>
#include <QWidget>
#include <vexel/fields/SoSFImage.h>
#include <vexel/sensors/SoWeakPtr.h>

/**
 * Shows an image as large as there is place, on a chequered ground where it is transparent. It is scaled when it is
 * painted for the first time after a change, and not copied.
 */
class ImagePreview : public QWidget {
    Q_OBJECT
public:
    explicit ImagePreview(QWidget* parent = nullptr);

    /** Shows what the image holds now; nothing once it is gone. */
    void setImage(const SoSFImage* image);
    const SoSFImage* image() const { return m_image.get(); }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void scale();

    SoWeakPtr<SoSFImage> m_image;
    QPixmap m_scaled;
    QSize m_scaledFor; ///< the size of the widget; invalid: to be scaled anew
};
