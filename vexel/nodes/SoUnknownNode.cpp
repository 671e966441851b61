#include <vexel/nodes/SoUnknownNode.h>

#include <vexel/fields/SoField.h>

SoUnknownNode::SoUnknownNode() = default;

SoUnknownNode::~SoUnknownNode() = default;

SoField* SoUnknownNode::addField(SoType type, const SbName& name)
{
    if (!type.isDerivedFrom(SoField::getClassTypeId()) || m_fieldData.getIndex(name) >= 0)
        return nullptr;
    std::unique_ptr<SoField> field(static_cast<SoField*>(type.createInstance()));
    if (!field)
        return nullptr;
    field->setContainer(this);
    m_fieldData.appendUnordered(this, name, field.get());
    m_fields.push_back(std::move(field));
    m_isDeclared = true;
    return m_fields.back().get();
}

void SoUnknownNode::clearDeclarations()
{
    m_fieldData.clear();
    m_fields.clear();
    m_baseTypes.clear();
    m_isDeclared = false;
}

void SoUnknownNode::copyDeclarations(const SoUnknownNode& from)
{
    m_bodyText = from.m_bodyText;
    m_baseTypes = from.m_baseTypes;
    m_isDeclared = from.m_isDeclared;
    for (int i = 0; i < from.m_fieldData.getNumFields(); ++i)
        addField(from.m_fieldData.getField(&from, i)->getTypeId(), from.m_fieldData.getFieldName(i));
}

void SoUnknownNode::copyContents(const SoNode& from, SoCopyMap& copies)
{
    const auto& source = static_cast<const SoUnknownNode&>(from);
    m_typeName = source.m_typeName;
    copyDeclarations(source);
    SoGroup::copyContents(from, copies);
}
