#include <vexel/nodes/SoWWWInline.h>

#include <vexel/actions/SoAction.h>
#include <vexel/base/SbFileHelper.h>
#include <vexel/io/SoInput.h>
#include <vexel/nodes/SoIndexedLineSet.h>
#include <vexel/nodes/SoLightModel.h>
#include <vexel/nodes/SoSeparator.h>
#include <vexel/nodes/SoVertexProperty.h>

namespace {

SoWWWInline::Function* s_function = nullptr;
void* s_data = nullptr;
SoWWWInline::BboxVisibility s_visibility = SoWWWInline::UNTIL_LOADED;

// The edges of a box, not touched by light.
SoSeparator* makeBox()
{
    static constexpr int Edges[] = {0, 1, 3, 2, 0, 4, 5, 7, 6, 4, -1, 1, 5, -1, 2, 6, -1, 3, 7, -1};
    auto* box = new SoSeparator;
    auto* model = new SoLightModel;
    model->model = SoLightModel::BASE_COLOR;
    auto* lines = new SoIndexedLineSet;
    lines->vertexProperty = new SoVertexProperty;
    lines->coordIndex.setValues(Edges, static_cast<int>(sizeof Edges / sizeof *Edges));
    box->addChild(model);
    box->addChild(lines);
    return box;
}

} // namespace

SoWWWInline::SoWWWInline()
{
    m_children.append(makeBox());
}

void SoWWWInline::updateBox()
{
    auto* box = static_cast<SoSeparator*>(m_children[0]);
    auto* lines = static_cast<SoIndexedLineSet*>(box->getChild(1));
    const SbVec3f half = bboxSize.getValue() / 2;
    SbVec3f corners[8];
    for (int i = 0; i < 8; ++i) {
        corners[i] = bboxCenter.getValue() +
                     SbVec3f((i & 1) ? half[0] : -half[0], (i & 2) ? half[1] : -half[1], (i & 4) ? half[2] : -half[2]);
    }
    static_cast<SoVertexProperty*>(lines->vertexProperty.getValue())->vertex.setValues(corners, 8);
}

SbString SoWWWInline::getFullURLName() const
{
    const SbString& url = name.getValue();
    if (m_folder.isEmpty() || SbFileHelper::isAbsolute(url) || url.find("://") >= 0)
        return url;
    return m_folder + url;
}

void SoWWWInline::setFetchURLCallBack(Function* function, void* data)
{
    s_function = function;
    s_data = data;
}

void SoWWWInline::requestChildrenFromURL()
{
    m_isRequested = true;
    if (s_function)
        s_function(getFullURLName(), s_data, this);
}

void SoWWWInline::setChildData(SoNode* scene)
{
    m_isHere = scene != nullptr;
    if (m_children.getLength() > 1 && scene) {
        m_children.set(1, scene);
        return;
    }
    if (m_children.getLength() > 1)
        m_children.remove(1);
    if (scene)
        m_children.append(scene);
}

SoNode* SoWWWInline::getChildData() const
{
    return m_children.getLength() > 1 ? m_children[1] : nullptr;
}

void SoWWWInline::setBoundingBoxVisibility(BboxVisibility visibility)
{
    s_visibility = visibility;
}

SoWWWInline::BboxVisibility SoWWWInline::getBoundingBoxVisibility()
{
    return s_visibility;
}

void SoWWWInline::doAction(SoAction& action)
{
    const bool showsStandIn = s_visibility == ALWAYS || (s_visibility == UNTIL_LOADED && !isURLDataHere());
    if (showsStandIn && alternateRep.getValue())
        action.traverse(*alternateRep.getValue());
    else if (showsStandIn && bboxSize.getValue() != SbVec3f(0, 0, 0))
        action.traverseChild(m_children, 0);
    for (int i = 1; i < m_children.getLength(); ++i)
        action.traverseChild(m_children, i);
}

void SoWWWInline::readFinished(SoInput& in)
{
    m_folder = SbFileHelper::getDirName(in.getCurFileName());
    updateBox();
}

void SoWWWInline::notify(SoNotList& list)
{
    if (list.field == &bboxCenter || list.field == &bboxSize)
        updateBox();
    SoNode::notify(list);
}

void SoWWWInline::copyContents(const SoNode& from, SoCopyMap& copies)
{
    SoNode::copyContents(from, copies);
    const auto& source = static_cast<const SoWWWInline&>(from);
    m_folder = source.m_folder;
    m_isRequested = source.m_isRequested;
    m_isHere = source.m_isHere;
}
