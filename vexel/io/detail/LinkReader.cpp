#include <vexel/base/SoPath.h>
#include <vexel/fields/SoField.h>
#include <vexel/fields/SoFieldContainer.h>
#include <vexel/io/SoDB.h>
#include <vexel/io/SoInput.h>
#include <vexel/io/detail/SceneReader.h>
#include <vexel/nodes/SoNode.h>

// What leads from one object of a scene to another: connections, paths, global fields.

bool SceneReader::readUse(Source& source)
{
    m_text.skipSpace();
    const char* place = m_text.position();
    const std::string_view word = m_text.readWord();
    auto found = m_definitions.find(std::string(word));
    const std::size_t point = word.rfind('.');
    if (found == m_definitions.end() && point != std::string_view::npos) {
        found = m_definitions.find(std::string(word.substr(0, point)));
        source.outputName = word.substr(point + 1);
    }
    if (found == m_definitions.end())
        return postUndefined(place, word);
    source.container = found->second.container;
    source.isComplete = !found->second.isOpen;
    return true;
}

bool SceneReader::readConnection(SoField& field)
{
    m_text.accept('=');
    m_text.skipSpace();
    const char* start = m_text.position();
    Source source;
    SoField* global = nullptr;
    const std::string_view word = m_text.readWord();
    bool isReported = false;
    if (word == "USE") {
        isReported = !readUse(source);
    } else if (word == "GlobalField") {
        if (!readGlobal(global))
            return false;
        source.container = global->getContainer();
    } else {
        m_text.setPosition(start);
        if (!readContainer(SoFieldContainer::getClassTypeId(), source.container))
            return false;
    }
    if (source.outputName.empty() && m_text.peek() == '.') {
        const std::string_view rest = m_text.readWord();
        source.outputName = rest == "." ? m_text.readWord() : rest.substr(rest.empty() || rest.front() != '.' ? 0 : 1);
    }
    if (isReported)
        return true;
    if (!source.container || source.outputName.empty())
        return m_in.postErrorAt(start, "expected a node, a point and the name of its field or output to connect to");
    if (const char* obstacle = m_connections.connect(field, *source.container, source.outputName, source.isComplete))
        m_in.postErrorAt(start, "no connection to \"" + std::string(source.outputName) + "\": " + obstacle);
    return true;
}

bool SceneReader::readPath(SoPath*& path)
{
    path = nullptr;
    m_text.skipSpace();
    const std::string_view word = m_text.readWord();
    if (word == "NULL")
        return true;
    if (word != "Path" || !m_text.accept('{'))
        return m_in.postError("Path and \"{\", or NULL");
    SoFieldContainer* head = nullptr;
    int count = 0;
    bool good = readContainer(SoNode::getClassTypeId(), head) && m_in.readNumber(count);
    if (good && head) {
        path = new SoPath(static_cast<SoNode*>(head));
        m_kept.add(path);
        for (int i = 0; i < count && good; ++i) {
            int index = 0;
            good = m_in.readNumber(index);
            if (good && !path->append(index)) {
                m_in.postErrorAt(m_text.position(), "the path leads to child " + std::to_string(index) +
                                                        ", which is not there; it is cut before it");
                break;
            }
        }
    }
    if (!m_text.skipBlock('{', '}'))
        m_in.postErrorAt(m_text.end(), "the closing brace of a Path is missing");
    return good;
}

bool SceneReader::readGlobalField(SoField*& field)
{
    return m_text.readWord() == "GlobalField" && readGlobal(field);
}

bool SceneReader::readGlobal(SoField*& field)
{
    m_text.skipSpace();
    const char* start = m_text.position();
    if (!m_text.accept('{'))
        return m_in.postError("\"{\" after GlobalField");
    const SoType type = SoType::fromName(SbName(m_text.readWord()));
    const SbName name(m_text.readWord());
    if (type.isDerivedFrom(SoField::getClassTypeId()) && !name.isEmpty())
        field = SoDB::createGlobalField(name, type);
    if (!field)
        m_in.postErrorAt(start, "expected a field type and a name that no field of another type has");
    else if (m_text.readWord() == name.getView() && !readField(*field))
        field = nullptr;
    if (!m_text.skipBlock('{', '}'))
        return m_in.postErrorAt(m_text.end(), "the closing brace of a GlobalField is missing");
    return field != nullptr;
}
