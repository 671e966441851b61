#include <vexel/fields/SoField.h>
#include <vexel/io/SoInput.h>
#include <vexel/io/detail/SceneReader.h>
#include <vexel/nodes/SoUnknownNode.h>

namespace {

// Tells whether a body holds nothing but nodes, so that they can be its children; the last may be cut off.
bool holdsOnlyNodes(TextReader text)
{
    bool any = false;
    for (char next = text.peek(); next && next != '}'; next = text.peek()) {
        std::string_view word = text.readWord();
        if (word.empty())
            return false;
        any = true;
        if (word == "USE") {
            if (text.readWord().empty())
                return false;
            continue;
        }
        if (word == "DEF") {
            text.readWord();
            word = text.readWord();
        }
        if (word.empty() || !text.accept('{'))
            return false;
        text.skipBlock('{', '}');
    }
    return any;
}

// The text of a block that the end of the file cut off, with what is missing: an open quotation and open braces are
// closed.
std::string completed(const char* begin, const char* end)
{
    while (end > begin && TextReader::isSpace(end[-1]))
        --end;
    std::string body(begin, end);
    TextReader text(begin, end);
    int depth = 0;
    while (const char c = text.peek()) {
        std::string ignored;
        if (c != '"') {
            depth += c == '{' ? 1 : (c == '}' ? -1 : 0);
            text.setPosition(text.position() + 1);
        } else if (!text.readText(ignored)) {
            const std::size_t backslashes = body.size() - body.find_last_not_of('\\') - 1;
            body += backslashes % 2 == 1 ? "\\\"" : "\"";
            break;
        }
    }
    for (; depth > 0; --depth)
        body += "\n}";
    return body;
}

} // namespace

bool SceneReader::readUnknown(SoUnknownNode& node, const char* opening)
{
    const char* start = m_text.position();
    if (readDeclarations(node) && (node.isDeclared() || holdsOnlyNodes(m_text)))
        return readBody(node, opening);

    node.clearDeclarations();
    // Without declarations that make sense here, the text is the best that can be kept.
    m_text.setPosition(start);
    const bool isComplete = m_text.skipBlock('{', '}');
    const char* end = isComplete ? m_text.position() - 1 : m_text.end();
    while (start < end && TextReader::isSpace(*start))
        ++start;
    while (end > start && TextReader::isSpace(end[-1]))
        --end;
    node.setBodyText(isComplete ? std::string(start, end) : completed(start, end));
    return isComplete || postMissingBrace(node.getNodeTypeName(), opening);
}

bool SceneReader::readDeclarations(SoUnknownNode& node)
{
    for (;;) {
        const char* start = m_text.position();
        const std::string_view word = m_text.readWord();
        const bool isDeclaration = word == "fields" || word == "inputs" || word == "outputs" || word == "isA";
        if (!isDeclaration || !m_text.accept('[')) {
            m_text.setPosition(start);
            return true;
        }
        // "isA" lists names in quotes; the others list pairs of a field type and a name.
        while (!m_text.accept(']')) {
            std::string base;
            if (m_text.peek() == '"') {
                if (!m_text.readText(base))
                    return false;
                node.addBaseTypeName(std::move(base));
                continue;
            }
            const SbName typeName(m_text.readWord());
            const SbName name(m_text.readWord());
            if (name.isEmpty() || !node.addField(SoType::fromName(typeName), name))
                return false;
        }
    }
}
