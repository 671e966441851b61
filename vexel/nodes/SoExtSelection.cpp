#include <vexel/nodes/SoExtSelection.h>

#include <algorithm>
#include <cmath>
#include <initializer_list>

#include <vexel/actions/SoHandleEventAction.h>
#include <vexel/actions/SoLocation2Event.h>
#include <vexel/actions/SoMouseButtonEvent.h>
#include <vexel/actions/SoPickedPoint.h>
#include <vexel/actions/detail/SceneLasso.h>
#include <vexel/base/SoPath.h>
#include <vexel/nodes/SoAnnotation.h>
#include <vexel/nodes/SoBaseColor.h>
#include <vexel/nodes/SoDrawStyle.h>
#include <vexel/nodes/SoLightModel.h>
#include <vexel/nodes/SoPickStyle.h>
#include <vexel/nodes/detail/LassoLine.h>

namespace {

// A hand that moves less than this wanted to click.
constexpr float Least_pixels = 3;
constexpr int Ellipse_corners = 64;

SbVec2f placeOf(const SoEvent& event)
{
    const SbVec2s& pixel = event.getPosition();
    return SbVec2f(static_cast<float>(pixel[0]) + 0.5f, static_cast<float>(pixel[1]) + 0.5f);
}

SoAnnotation* overlayWith(LassoLine* line)
{
    auto* overlay = new SoAnnotation;
    auto* light = new SoLightModel;
    light->model = SoLightModel::BASE_COLOR;
    auto* color = new SoBaseColor;
    color->rgb = SbColor(1, 0.9f, 0.3f);
    auto* style = new SoDrawStyle;
    style->style = SoDrawStyle::FILLED;
    style->lineWidth = 1.5f;
    style->linePattern = 0xffff;
    auto* picking = new SoPickStyle;
    picking->style = SoPickStyle::UNPICKABLE;
    for (SoNode* node : std::initializer_list<SoNode*>{light, color, style, picking, line})
        overlay->addChild(node);
    return overlay;
}

} // namespace

SoExtSelection::~SoExtSelection()
{
    if (!m_overlay)
        return;
    m_overlay->removeAuditor(static_cast<SoFieldContainer*>(this), SoAuditorType::Container);
    m_overlay->unref();
}

void SoExtSelection::doAction(SoAction& action)
{
    SoSelection::doAction(action);
    if (m_overlay && action.needsState())
        action.traverse(*m_overlay);
}

void SoExtSelection::handleEvent(SoHandleEventAction& action)
{
    const SoEvent* event = action.getEvent();
    if (!m_way.empty() && event->isOfType(SoLocation2Event::getClassTypeId()))
        drag(action);
    else if (!m_way.empty() && SoMouseButtonEvent::isButtonReleaseEvent(event, SoMouseButtonEvent::BUTTON1))
        finish(action);
    else if (lassoType.getValue() != NOLASSO &&
             SoMouseButtonEvent::isButtonPressEvent(event, SoMouseButtonEvent::BUTTON1))
        begin(action);
    else
        SoSelection::handleEvent(action);
}

void SoExtSelection::begin(SoHandleEventAction& action)
{
    if (!m_overlay) {
        m_line = new LassoLine;
        m_overlay = overlayWith(m_line);
        m_overlay->ref();
        // The overlay is drawn as if it were a child, so its changes have to come here as well.
        m_overlay->addAuditor(static_cast<SoFieldContainer*>(this), SoAuditorType::Container);
        touch();
    }
    m_way = {placeOf(*action.getEvent())};
    action.setGrabber(this);
    action.setHandled();
}

void SoExtSelection::drag(SoHandleEventAction& action)
{
    const SbVec2f place = placeOf(*action.getEvent());
    // All of the way counts for a line drawn by hand, start and end for the other forms.
    if (lassoType.getValue() != LASSO)
        m_way.resize(1);
    m_way.push_back(place);
    m_line->setOutline(outline());
    action.setHandled();
}

void SoExtSelection::finish(SoHandleEventAction& action)
{
    const bool isClick = std::all_of(m_way.begin(), m_way.end(), [this](const SbVec2f& place) {
        return (place - m_way.front()).length() < Least_pixels;
    });
    SoPathList paths;
    if (isClick) {
        if (const SoPickedPoint* point = action.getPickedPoint())
            paths.append(point->getPath()->copy());
    } else {
        const int rule = lassoPolicy.getValue();
        vexel::SceneLasso lasso;
        lasso.outline = outline();
        lasso.wantsWhole = rule == FULL_BBOX || rule == FULL;
        lasso.byBox = rule == FULL_BBOX || rule == PART_BBOX;
        lasso.onlyVisible = lassoMode.getValue() == VISIBLE_SHAPES;
        SoPath* way = action.getCurPath();
        way->ref();
        lasso.find(*way->getHead(), action.state().getViewportRegion(), *this, paths);
        way->unref();
    }
    m_way.clear();
    m_line->setOutline({});
    action.setHandled();
    // The last thing: without the grab nothing may hold this node any more.
    pick(paths, action.getEvent()->wasShiftDown());
    action.releaseGrabber();
}

std::vector<SbVec2f> SoExtSelection::outline() const
{
    if (lassoType.getValue() == LASSO || m_way.size() < 2)
        return m_way;
    const SbVec2f from = m_way.front();
    const SbVec2f to = m_way.back();
    if (lassoType.getValue() == RECTANGLE)
        return {from, SbVec2f(to[0], from[1]), to, SbVec2f(from[0], to[1])};
    std::vector<SbVec2f> result;
    for (int i = 0; i < Ellipse_corners; ++i) {
        const float angle = 6.2831853f * static_cast<float>(i) / Ellipse_corners;
        result.push_back(SbVec2f(from[0] + (to[0] - from[0]) * (1 + std::cos(angle)) / 2,
                                 from[1] + (to[1] - from[1]) * (1 + std::sin(angle)) / 2));
    }
    return result;
}
