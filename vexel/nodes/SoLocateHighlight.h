#pragma once

#include <vexel/fields/SoEnumEntry.h>
#include <vexel/fields/SoSFColor.h>
#include <vexel/fields/SoSFEnum.h>
#include <vexel/nodes/SoSeparator.h>

/** A separator whose shapes stand out while the cursor is over them. */
class VEXEL_API SoLocateHighlight : public SoSeparator {
    SO_NODE(SoLocateHighlight, SoSeparator)
public:
    enum Mode { AUTO, ON, OFF };
    static constexpr SoEnumEntry Mode_names[] = {{"AUTO", AUTO}, {"ON", ON}, {"OFF", OFF}};
    enum Style { EMISSIVE, EMISSIVE_DIFFUSE };
    static constexpr SoEnumEntry Style_names[] = {{"EMISSIVE", EMISSIVE}, {"EMISSIVE_DIFFUSE", EMISSIVE_DIFFUSE}};

    SoSFColor color{this, "color", SbColor(0.3f, 0.3f, 0.3f)};
    /** Which colours of the material give way to color. */
    SoSFEnum style{this, "style", EMISSIVE, Style_names};
    /** ON stands out always, OFF never. */
    SoSFEnum mode{this, "mode", AUTO, Mode_names};

    /** Told by the event handling when the pointer moves: whether the cursor is over the shapes. */
    void setLocated(bool on);
    bool isHighlighted() const;

    void doAction(SoAction& action) override;
    void handleEvent(SoHandleEventAction& action) override;

private:
    bool m_isLocated = false;
};
