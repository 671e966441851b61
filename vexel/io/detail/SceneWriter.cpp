#include <vexel/io/detail/SceneWriter.h>

#include <vexel/base/SbString.h>
#include <vexel/base/SoPath.h>
#include <vexel/engines/SoEngine.h>
#include <vexel/engines/SoEngineOutput.h>
#include <vexel/fields/SoField.h>
#include <vexel/fields/SoFieldContainer.h>
#include <vexel/fields/detail/ReferenceField.h>
#include <vexel/io/SoOutput.h>
#include <vexel/io/detail/GlobalFields.h>
#include <vexel/io/detail/TextReader.h>
#include <vexel/nodes/SoUnknownNode.h>

namespace {

const SoNode* asNode(const SoFieldContainer& container)
{
    return container.isOfType(SoNode::getClassTypeId()) ? static_cast<const SoNode*>(&container) : nullptr;
}

const SoUnknownNode* asUnknown(const SoFieldContainer& container)
{
    return container.isOfType(SoUnknownNode::getClassTypeId()) ? static_cast<const SoUnknownNode*>(&container)
                                                               : nullptr;
}

// The container that a connection comes from; null for one from a global field, which is written out as such.
const SoFieldContainer* sourceOf(const SoField& field)
{
    if (SoEngineOutput* output = field.getConnectedEngine())
        return output->getContainer();
    const SoField* master = field.getConnectedField();
    return master && !isGlobalField(*master) ? master->getContainer() : nullptr;
}

// The part of a name that a file can hold: no character that ends a word, and no plus sign, behind which only what
// keeps equal names apart may stand.
std::string writableName(const SbName& name)
{
    std::string text(name.getView());
    for (char& c : text) {
        if (!TextReader::isWordCharacter(c) || c == '+')
            c = '_';
    }
    return text;
}

} // namespace

template <class Visit>
void SceneWriter::forEachHeld(const SoFieldContainer& container, Visit&& visit) const
{
    const SoFieldData& data = container.getFieldData();
    for (int i = 0; i < data.getNumFields(); ++i) {
        const SoField* field = data.getField(&container, i);
        if (!container.shouldWriteField(*field))
            continue;
        for (SoBase* base : field->getReferences()) {
            if (!base)
                continue;
            if (base->isOfType(SoFieldContainer::getClassTypeId()))
                visit(static_cast<const SoFieldContainer*>(base));
            else if (base->isOfType(SoPath::getClassTypeId()) && static_cast<SoPath*>(base)->getHead())
                visit(static_cast<const SoFieldContainer*>(static_cast<SoPath*>(base)->getHead()));
        }
        if (const SoFieldContainer* source = sourceOf(*field))
            visit(source);
    }
    const SoNode* node = asNode(container);
    if (!node || !node->hasFileChildren())
        return;
    const SoChildList& children = *node->getChildren();
    for (int i = 0; i < children.getLength(); ++i)
        visit(static_cast<const SoFieldContainer*>(children[i]));
}

void SceneWriter::prepare(const SoFieldContainer* root)
{
    if (!root || ++m_mentions[root].count > 1)
        return;
    forEachHeld(*root, [this](const SoFieldContainer* held) { prepare(held); });
}

const std::string& SceneWriter::nameOf(const SoFieldContainer* container)
{
    Mention& mention = m_mentions[container];
    if (mention.isNamed)
        return mention.name;
    mention.isNamed = true;
    const std::string base = writableName(container->getName());
    if (base.empty() && mention.count < 2)
        return mention.name;
    mention.name = base;
    while (mention.name.empty() || !m_usedNames.insert(mention.name).second)
        mention.name = base + "+" + std::to_string(++m_suffixes[base]);
    return mention.name;
}

void SceneWriter::writeContainer(const SoFieldContainer* container)
{
    if (!container) {
        m_out.write("NULL");
        return;
    }
    // An object that nobody announced is written by itself.
    if (m_mentions.find(container) == m_mentions.end())
        prepare(container);
    const std::string& name = nameOf(container);
    Mention& mention = m_mentions[container];
    if (mention.isWritten) {
        m_out.write("USE ");
        m_out.write(name);
        return;
    }
    mention.isWritten = true;
    if (!name.empty()) {
        m_out.write("DEF ");
        m_out.write(name);
        m_out.write(' ');
    }
    const SoUnknownNode* unknown = asUnknown(*container);
    m_out.write(unknown ? std::string_view(unknown->getNodeTypeName()) : container->getTypeId().getName().getView());
    m_out.write(" {");
    m_out.indent(1);
    if (unknown)
        writeUnknownBody(*unknown);
    writeBody(*container);
    m_out.indent(-1);
    m_out.writeNewLine();
    m_out.write('}');
    m_out.flushWhenFull();
}

void SceneWriter::writeBody(const SoFieldContainer& container)
{
    writeFields(container);
    const SoNode* node = asNode(container);
    if (!node || !node->hasFileChildren())
        return;
    const SoChildList& children = *node->getChildren();
    for (int i = 0; i < children.getLength(); ++i) {
        m_out.writeNewLine();
        writeContainer(children[i]);
    }
}

void SceneWriter::writeUnknownBody(const SoUnknownNode& node)
{
    if (node.isDeclared()) {
        const SoFieldData& data = node.getFieldData();
        m_out.writeNewLine();
        m_out.write("fields [ ");
        for (int i = 0; i < data.getNumFields(); ++i) {
            m_out.write(i > 0 ? ", " : "");
            m_out.write(data.getField(&node, i)->getTypeId().getName().getView());
            m_out.write(' ');
            m_out.write(data.getFieldName(i).getView());
        }
        m_out.write(" ]");
    }
    if (!node.getBaseTypeNames().empty()) {
        m_out.writeNewLine();
        m_out.write("isA [ ");
        const char* separator = "";
        for (const std::string& base : node.getBaseTypeNames()) {
            m_out.write(separator);
            m_out.writeQuoted(base);
            separator = ", ";
        }
        m_out.write(" ]");
    }
    if (!node.getBodyText().empty()) {
        m_out.writeNewLine();
        m_out.write(node.getBodyText());
    }
}

void SceneWriter::writeFields(const SoFieldContainer& container)
{
    const SoFieldData& data = container.getFieldData();
    for (int i = 0; i < data.getNumFields(); ++i) {
        const SoField* field = data.getField(&container, i);
        if (!container.shouldWriteField(*field))
            continue;
        m_out.writeNewLine();
        m_out.write(data.getFieldName(i).getView());
        if (container.shouldWriteValue(*field)) {
            m_out.write(' ');
            field->writeValue(m_out);
        }
        if (field->isIgnored())
            m_out.write(" ~");
        if (field->isConnected())
            writeConnection(*field);
    }
}

void SceneWriter::writeConnection(const SoField& field)
{
    m_out.write(" = ");
    const SoField* master = field.getConnectedField();
    if (const SoFieldContainer* source = sourceOf(field))
        writeContainer(source);
    else
        writeGlobalField(m_out, *master);
    m_out.write(" . ");
    m_out.write((master ? master->getName() : field.getConnectedEngine()->getName()).getView());
}

int SceneWriter::writableLength(const SoPath& path)
{
    int length = 1;
    while (length < path.getFullLength() && path.getIndex(length) >= 0)
        ++length;
    return length;
}

void SceneWriter::writePath(const SoPath* path)
{
    if (!path || !path->getHead()) {
        m_out.write("NULL");
        return;
    }
    m_out.write("Path {");
    m_out.indent(1);
    m_out.writeNewLine();
    writeContainer(path->getHead());
    m_out.writeNewLine();
    const int length = writableLength(*path);
    m_out.writeNumber(length - 1);
    for (int i = 1; i < length; ++i) {
        m_out.write(' ');
        m_out.writeNumber(path->getIndex(i));
    }
    m_out.indent(-1);
    m_out.writeNewLine();
    m_out.write('}');
}
