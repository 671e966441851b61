#include <vexel/nodes/SoLocateHighlight.h>

#include <vexel/actions/SoAction.h>
#include <vexel/state/SoState.h>

void SoLocateHighlight::setLocated(bool on)
{
    if (m_isLocated == on)
        return;
    m_isLocated = on;
    touch();
}

bool SoLocateHighlight::isHighlighted() const
{
    return mode.getValue() == ON || (mode.getValue() == AUTO && m_isLocated);
}

void SoLocateHighlight::doAction(SoAction& action)
{
    if (!isHighlighted()) {
        SoSeparator::doAction(action);
        return;
    }
    SoState& state = action.state();
    state.push();
    const SoStateList<SbColor> highlight{&color.getValue(), 1, this};
    if (state.mayChange(SO_OVERRIDE_EMISSIVE, true))
        state->emissiveColor = highlight;
    if (style.getValue() == EMISSIVE_DIFFUSE && state.mayChange(SO_OVERRIDE_DIFFUSE, true)) {
        state->diffuseColor = highlight;
        state->packedColor = {};
    }
    SoSeparator::doAction(action);
    state.pop();
}
