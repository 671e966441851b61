#include <vexel/nodes/SoLocateHighlight.h>

#include <vexel/actions/SoHandleEventAction.h>
#include <vexel/actions/SoLocation2Event.h>
#include <vexel/actions/SoPickedPoint.h>
#include <vexel/base/SoPath.h>
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

void SoLocateHighlight::handleEvent(SoHandleEventAction& action)
{
    // Looked up in every mode, so that it is known what is under the pointer when the mode becomes AUTO.
    if (action.getEvent()->isOfType(SoLocation2Event::getClassTypeId())) {
        const SoPickedPoint* point = action.getPickedPoint();
        setLocated(point && point->getPath()->containsNode(this));
    }
    SoSeparator::handleEvent(action);
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
