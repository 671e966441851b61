#include <vexel/io/detail/SceneReader.h>

#include <vexel/fields/SoField.h>
#include <vexel/fields/SoFieldContainer.h>
#include <vexel/io/SoInput.h>
#include <vexel/io/detail/NewContainer.h>
#include <vexel/nodes/SoChildList.h>
#include <vexel/nodes/SoNode.h>

namespace {

std::string quoted(std::string_view word)
{
    return "\"" + std::string(word) + "\"";
}

class DepthGuard {
public:
    explicit DepthGuard(int& depth) : m_depth(++depth), m_counter(depth) {}
    DepthGuard(const DepthGuard&) = delete;
    DepthGuard& operator=(const DepthGuard&) = delete;
    ~DepthGuard() { --m_counter; }
    int depth() const { return m_depth; }

private:
    int m_depth;
    int& m_counter;
};

} // namespace

SceneReader::SceneReader(SoInput& in) : m_in(in), m_text(in.text()) {}

SceneReader::Item SceneReader::readItem(SoNode*& node, SoPath*& path)
{
    node = nullptr;
    path = nullptr;
    while (m_text.peek() == '}') {
        m_in.postErrorAt(m_text.position(), "a closing brace without an opening one; it is passed over");
        m_text.accept('}');
    }
    if (!m_text.peek())
        return Item::Nothing;
    const char* start = m_text.position();
    const std::string_view word = m_text.readWord();
    if (word == "Path") {
        m_text.setPosition(start);
        return readPath(path) ? Item::Path : Item::Error;
    }
    SoField* global = nullptr;
    if (word == "GlobalField")
        return readGlobal(global) ? Item::Global : Item::Error;
    m_text.setPosition(start);
    SoFieldContainer* container = nullptr;
    if (readContainer(SoNode::getClassTypeId(), container)) {
        node = static_cast<SoNode*>(container);
        return Item::Node;
    }
    // Something that no item begins with is passed over alone.
    if (m_text.position() == start)
        m_text.skipItem();
    return Item::Error;
}

bool SceneReader::readContainer(SoType family, SoFieldContainer*& container)
{
    container = nullptr;
    const std::string_view word = m_text.readWord();
    if (word.empty())
        return m_in.postError("a node");
    if (word == "NULL")
        return true;
    if (word == "USE") {
        m_text.skipSpace();
        const char* place = m_text.position();
        if (!readUse(container))
            return false;
        leaveOutUnlessOf(family, place, container);
        return true;
    }
    if (word != "DEF")
        return readDefined(family, word, nullptr, container);

    const std::string name(m_text.readWord());
    if (name.empty())
        return m_in.postError("a name after DEF");
    const std::string_view typeName = m_text.readWord();
    if (typeName.empty())
        return m_in.postError("a node type after DEF and a name");
    return readDefined(family, typeName, &name, container);
}

void SceneReader::leaveOutUnlessOf(SoType family, const char* place, SoFieldContainer*& container)
{
    if (container->isOfType(family))
        return;
    m_in.postErrorAt(place, "a " + std::string(family.getName().getView()) + " is expected here; it is left out");
    container = nullptr;
}

bool SceneReader::readUse(SoFieldContainer*& container)
{
    m_text.skipSpace();
    const char* place = m_text.position();
    const std::string_view word = m_text.readWord();
    const auto found = m_definitions.find(std::string(word));
    if (found == m_definitions.end())
        return postUndefined(place, word);
    if (found->second.isOpen)
        return m_in.postErrorAt(place,
                                "USE of " + quoted(word) +
                                    " inside its own definition; a graph cannot contain itself, the reference is "
                                    "left out");
    container = found->second.container;
    return true;
}

bool SceneReader::postUndefined(const char* place, std::string_view word)
{
    return m_in.postErrorAt(place, "USE of " + quoted(word) + ", which no DEF before it defines");
}

bool SceneReader::readDefined(SoType family, std::string_view typeName, const std::string* name,
                              SoFieldContainer*& container)
{
    m_text.skipSpace();
    const char* opening = m_text.position();
    if (!m_text.accept('{'))
        return m_in.postError(("\"{\" after the type name " + quoted(typeName)).c_str());

    const DepthGuard guard(m_depth);
    if (guard.depth() > MaxDepth) {
        m_in.postErrorAt(opening, "more than " + std::to_string(MaxDepth) + " nodes inside each other; " +
                                      quoted(typeName) + " and what it holds is left out");
        m_text.skipBlock('{', '}');
        return false;
    }

    const SoType type = SoType::fromName(SbName(typeName));
    if (type.isDerivedFrom(SoFieldContainer::getClassTypeId()) &&
        !(type.isDerivedFrom(family) && NewContainer::isKnown(type))) {
        m_in.postErrorAt(opening, "a " + std::string(family.getName().getView()) + " is expected here, and " +
                                      quoted(typeName) + " is none");
        m_text.skipBlock('{', '}');
        return false;
    }
    const NewContainer made(type, typeName, name ? *name : std::string_view(), m_kept);
    container = made.container;
    if (name)
        m_definitions[*name] = {container, true};

    // Nobody listens to a node that is not part of a graph yet.
    container->enableNotify(false);
    if (made.unknown)
        readUnknown(*made.unknown, opening);
    else
        readBody(*container, opening);
    container->enableNotify(true);
    if (name)
        m_definitions[*name] = {container, false};
    if (container->isOfType(SoNode::getClassTypeId()))
        static_cast<SoNode*>(container)->readFinished(m_in);
    m_in.updateProgress();
    // A node of an unknown type cannot stand where a field asks for something else than any node.
    leaveOutUnlessOf(family, opening, container);
    return true;
}

bool SceneReader::readBody(SoFieldContainer& container, const char* opening)
{
    auto* node = container.isOfType(SoNode::getClassTypeId()) ? static_cast<SoNode*>(&container) : nullptr;
    const bool takesChildren = node && node->hasFileChildren();
    for (;;) {
        const char next = m_text.peek();
        if (next == '}') {
            m_text.accept('}');
            return true;
        }
        if (!next) {
            return postMissingBrace(container.getTypeId().getName().getView(), opening);
        }
        const char* start = m_text.position();
        const std::string_view word = m_text.readWord();
        bool good = true;
        // A brace behind a word makes it the type of a node, even where a field has the same name.
        SoField* field = word.empty() || m_text.peek() == '{' ? nullptr : container.getField(SbName(word));
        if (field) {
            field->disconnect(); // a new object may have connections of its own
            good = readField(*field);
        } else {
            m_text.setPosition(start);
            if (word.empty()) {
                good = m_in.postError("a field name, a node or \"}\"");
            } else if (takesChildren && isNodeAhead()) {
                readChild(*node);
            } else {
                m_in.postErrorAt(start, quoted(word) + " is no field of " +
                                            std::string(container.getTypeId().getName().getView()) +
                                            (isNodeAhead() ? ", and it has no children" : "") + "; it is passed over");
                if (isNodeAhead()) {
                    SoFieldContainer* ignored = nullptr;
                    readContainer(SoNode::getClassTypeId(), ignored);
                } else {
                    m_text.readWord();
                    skipUnknownField(container);
                }
            }
        }
        if (!good) {
            m_text.skipBlock('{', '}');
            return false;
        }
    }
}

bool SceneReader::postMissingBrace(std::string_view typeName, const char* opening)
{
    const TextReader::Location location = m_text.locate(opening);
    return m_in.postErrorAt(m_text.end(), "the closing brace of the " + std::string(typeName) +
                                              " that begins in line " + std::to_string(location.line) + " is missing");
}

bool SceneReader::readChild(SoNode& parent)
{
    SoFieldContainer* child = nullptr;
    if (!readContainer(SoNode::getClassTypeId(), child))
        return false;
    if (child && child->isOfType(SoNode::getClassTypeId()))
        parent.getChildren()->append(static_cast<SoNode*>(child));
    return true;
}

bool SceneReader::isNodeAhead()
{
    const char* start = m_text.position();
    const std::string_view word = m_text.readWord();
    bool ahead = false;
    if (word == "USE" || word == "DEF")
        ahead = !m_text.readWord().empty();
    else
        ahead = m_text.peek() == '{' || word == "NULL";
    m_text.setPosition(start);
    return ahead;
}

void SceneReader::skipUnknownField(const SoFieldContainer& container)
{
    while (const char next = m_text.peek()) {
        if (next == '}')
            return;
        const char* start = m_text.position();
        const std::string_view word = m_text.readWord();
        const bool hasBrace = m_text.peek() == '{';
        const bool isField = !word.empty() && !hasBrace && container.getField(SbName(word));
        const bool isNode = !word.empty() && hasBrace && !SoType::fromName(SbName(word)).isBad();
        m_text.setPosition(start);
        if (isField || isNode || ((word == "DEF" || word == "USE") && isNodeAhead()))
            return;
        m_text.skipItem();
    }
}

bool SceneReader::readFields(SoFieldContainer& container)
{
    while (m_text.peek()) {
        const char* start = m_text.position();
        const std::string_view word = m_text.readWord();
        SoField* field = word.empty() ? nullptr : container.getField(SbName(word));
        if (!field) {
            m_text.setPosition(start);
            return m_in.postError("the name of a field");
        }
        if (!readField(*field))
            return false;
    }
    return true;
}

bool SceneReader::readField(SoField& field)
{
    const char next = m_text.peek();
    if (next != '~' && next != '=') {
        if (!field.readValue(m_in))
            return false;
        field.setDefault(false);
    }
    if (m_text.accept('~'))
        field.setIgnored(true);
    return m_text.peek() != '=' || readConnection(field);
}
