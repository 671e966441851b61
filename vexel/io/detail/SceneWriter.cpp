#include <vexel/io/detail/SceneWriter.h>

#include <vexel/base/SbString.h>
#include <vexel/base/SoPath.h>
#include <vexel/engines/SoEngineOutput.h>
#include <vexel/fields/SoField.h>
#include <vexel/fields/SoFieldContainer.h>
#include <vexel/io/SoOutput.h>
#include <vexel/io/detail/GlobalFields.h>
#include <vexel/io/detail/HeldObjects.h>
#include <vexel/io/detail/TextReader.h>
#include <vexel/nodes/SoUnknownNode.h>

namespace {

const SoUnknownNode* asUnknown(const SoFieldContainer& container)
{
    return container.isOfType(SoUnknownNode::getClassTypeId()) ? static_cast<const SoUnknownNode*>(&container)
                                                               : nullptr;
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

void SceneWriter::prepare(const SoFieldContainer* root)
{
    if (!root || ++m_mentions[root].count > 1)
        return;
    const auto prepareHeld = [this](const SoFieldContainer& held) { prepare(&held); };
    forEachHeldInFields(*root, prepareHeld, prepareHeld);
    m_extract.forEachChild(*root, prepareHeld);
}

void SceneWriter::beginPath(const SoPath& path)
{
    m_mentions.clear();
    m_extract = PathExtract(path);
    prepare(path.getHead());
}

void SceneWriter::endPath()
{
    m_mentions.clear();
    m_extract = PathExtract();
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
    m_extract.forEachChild(container, [this](const SoNode& child) {
        m_out.writeNewLine();
        writeContainer(&child);
    });
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
    const std::vector<int> indices = m_extract.indicesOf(*path);
    m_out.writeNumber(indices.size());
    for (const int index : indices) {
        m_out.write(' ');
        m_out.writeNumber(index);
    }
    m_out.indent(-1);
    m_out.writeNewLine();
    m_out.write('}');
}
