#pragma once

#include <plugins/field_editors/values/ValueWidget.h>
#include <vexel/base/SbColor.h>

class CheckedLine;
class ColorChannels;
class ColorSwatch;

/**
 * A colour: as red, green and blue, as hue, saturation and value, as #rrggbb, and chosen in a dialog. Components below
 * 0 and above 1 can be typed. The hue of a grey stays what it was.
 */
class ColorWidget : public ValueWidget {
    Q_OBJECT
public:
    explicit ColorWidget(QWidget* parent = nullptr);

    void showValue(const SoField& value) override;
    void setReadOnly(bool isReadOnly) override;
    void forgetInput() override;

private:
    void connectChannels(ColorChannels& channels);
    void showColor(const SbColor& color);
    void edit(const SbColor& color);
    void updateHue(const SbColor& color);

    SbColor m_color;
    SbVec3f m_hsv;
    ColorSwatch* m_swatch;
    CheckedLine* m_line;
    ColorChannels* m_rgbChannels;
    ColorChannels* m_hsvChannels;
};
