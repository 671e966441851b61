#pragma once

#include <memory>
#include <string>
#include <vector>

#include <vexel/nodes/SoGroup.h>

/**
 * Stands for a node of a type that the program does not know, as it was read: its fields when the file declares them,
 * otherwise its text; and its children. It has no effect of its own and is written again as it was.
 */
class VEXEL_API SoUnknownNode : public SoGroup {
    SO_NODE(SoUnknownNode, SoGroup)
public:
    SoUnknownNode();

    /** The type name that the file gives. */
    const std::string& getNodeTypeName() const { return m_typeName; }
    void setNodeTypeName(std::string name) { m_typeName = std::move(name); }

    /** Names of the base types that the file declares, nearest first. */
    const std::vector<std::string>& getBaseTypeNames() const { return m_baseTypes; }
    void addBaseTypeName(std::string name) { m_baseTypes.push_back(std::move(name)); }

    /** Declares a field. Null when there is no such field type, or a field of that name. */
    SoField* addField(SoType type, const SbName& name);
    const SoFieldData& getFieldData() const override { return m_fieldData; }
    bool isDeclared() const { return m_isDeclared; }
    void setDeclared(bool on) { m_isDeclared = on; }

    /** Takes back all declarations of fields and base types. */
    void clearDeclarations();

    /** The text between the braces, for a node whose contents are not known any better. */
    const std::string& getBodyText() const { return m_bodyText; }
    void setBodyText(std::string text) { m_bodyText = std::move(text); }

    /** Takes over declared fields, without their values, base types and text of another node. */
    void copyDeclarations(const SoUnknownNode& from);

    void copyContents(const SoNode& from, SoCopyMap& copies) override;

protected:
    ~SoUnknownNode() override;

private:
    std::string m_typeName;
    std::string m_bodyText;
    std::vector<std::string> m_baseTypes;
    std::vector<std::unique_ptr<SoField>> m_fields;
    SoFieldData m_fieldData;
    bool m_isDeclared = false;
};
