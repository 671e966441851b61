#include <vexel/io/detail/BinaryReader.h>

#include <algorithm>
#include <cstring>
#include <string>

#include <zlib.h>

#include <vexel/base/SoPath.h>
#include <vexel/base/SoReadError.h>
#include <vexel/fields/SoField.h>
#include <vexel/io/SoInput.h>
#include <vexel/io/detail/BinaryFormat.h>
#include <vexel/io/detail/NewContainer.h>
#include <vexel/io/detail/SceneReader.h>
#include <vexel/nodes/SoUnknownNode.h>

namespace {

// What an ascii file can hold as the type of a node.
bool isTypeName(std::string_view name)
{
    static constexpr std::string_view Keywords[] = {"DEF", "USE", "NULL", "Path", "GlobalField"};
    return !name.empty() && std::all_of(name.begin(), name.end(), TextReader::isWordCharacter) &&
           std::find(std::begin(Keywords), std::end(Keywords), name) == std::end(Keywords);
}

} // namespace

BinaryReader::BinaryReader(SoInput& in, const char* data, std::size_t size)
    : m_in(in), m_start(data), m_rest{data, data + size}
{
}

bool BinaryReader::post(const char* at, const char* message)
{
    return m_in.postErrorAtByte(static_cast<std::size_t>(at - m_start), message);
}

template <class Number>
bool BinaryReader::take(Bytes& bytes, Number& number)
{
    if (bytes.size() < sizeof number)
        return post(bytes.at, "a number is cut off");
    std::memcpy(&number, bytes.at, sizeof number);
    bytes.at += sizeof number;
    return true;
}

bool BinaryReader::takeChunk(Bytes& bytes, Chunk& chunk)
{
    const char* start = bytes.at;
    std::uint64_t length = 0;
    if (!take(bytes, chunk.kind) || !take(bytes, chunk.argument) || !take(bytes, length))
        return false;
    if (length > bytes.size())
        return post(start, "a chunk is longer than what holds it");
    chunk.body = {bytes.at, bytes.at + length};
    bytes.at += std::min(BinaryFormat::padded(length), bytes.size());
    return true;
}

bool BinaryReader::open()
{
    const char* start = m_rest.at;
    std::uint32_t version = 0;
    std::uint64_t length = 0;
    std::uint32_t checkSum = 0;
    if (m_rest.size() < BinaryFormat::PreambleSize ||
        std::memcmp(start, BinaryFormat::Magic, sizeof BinaryFormat::Magic) != 0)
        return post(start, "the binary scene does not begin as it should");
    m_rest.at += sizeof BinaryFormat::Magic;
    if (!take(m_rest, version) || !take(m_rest, length) || !take(m_rest, checkSum))
        return false;
    m_rest.at = start + BinaryFormat::PreambleSize;
    if (version != BinaryFormat::Version)
        return post(start, "the binary scene is of a version that this program does not know");
    if (length > m_rest.size())
        return post(m_rest.end, "the file is cut off");
    m_rest.end = m_rest.at + length;
    if (crc32_z(0, reinterpret_cast<const Bytef*>(m_rest.at), m_rest.size()) != checkSum)
        return post(m_rest.at, "the check sum is wrong: the file is damaged");
    return readNames(m_rest);
}

bool BinaryReader::readNames(Bytes& bytes)
{
    Chunk chunk;
    if (!takeChunk(bytes, chunk))
        return false;
    if (chunk.kind != BinaryFormat::Names)
        return post(bytes.at, "the table of names is missing");
    for (std::uint32_t i = 0; i < chunk.argument; ++i) {
        std::uint32_t length = 0;
        if (!take(chunk.body, length))
            return false;
        if (length > chunk.body.size())
            return post(chunk.body.at, "a name is cut off");
        m_names.emplace_back(chunk.body.at, length);
        chunk.body.at += length;
    }
    return true;
}

bool BinaryReader::nameAt(std::uint32_t index, std::string_view& name, const char* at)
{
    if (index >= m_names.size())
        return post(at, "there is no name of that number");
    name = m_names[index];
    return true;
}

bool BinaryReader::readItem(SoBase*& base)
{
    base = nullptr;
    while (m_rest.size() > 0 && !base) {
        Chunk chunk;
        if (!takeChunk(m_rest, chunk)) {
            m_rest.at = m_rest.end;
            return false;
        }
        if (!readObject(chunk, base))
            return false;
    }
    return true;
}

bool BinaryReader::readObject(const Chunk& chunk, SoBase*& base)
{
    base = nullptr;
    switch (chunk.kind) {
    case BinaryFormat::Container:
        return readContainer(chunk, base);
    case BinaryFormat::Path:
        return readPath(chunk, base);
    case BinaryFormat::Use:
        if (chunk.argument >= m_made.size() || m_made[chunk.argument].isOpen)
            return post(chunk.body.at, "a reference to an object that is not complete before it");
        base = m_made[chunk.argument].container;
        return true;
    default:
        return true;
    }
}

bool BinaryReader::readContainer(const Chunk& chunk, SoBase*& base)
{
    if (m_depth >= SceneReader::MaxDepth)
        return post(chunk.body.at, "too many nodes inside each other");
    Bytes body = chunk.body;
    std::string_view typeName;
    std::string_view name;
    std::uint32_t nameIndex = 0;
    if (!nameAt(chunk.argument, typeName, body.at) || !take(body, nameIndex) || !nameAt(nameIndex, name, body.at))
        return false;
    body.at = chunk.body.at + std::min<std::size_t>(BinaryFormat::Alignment, chunk.body.size());

    if (!isTypeName(typeName))
        return post(chunk.body.at, "the name of a node type is none");
    const auto [container, unknown] = NewContainer(SoType::fromName(SbName(typeName)), typeName, name, m_kept);
    base = container;
    const std::size_t number = m_made.size();
    m_made.push_back({container, true});
    auto* node = container->isOfType(SoNode::getClassTypeId()) ? static_cast<SoNode*>(container) : nullptr;

    ++m_depth;
    container->enableNotify(false);
    bool good = true;
    while (good && body.size() > 0) {
        Chunk part;
        good = takeChunk(body, part);
        if (!good)
            break;
        if (part.kind == BinaryFormat::Field) {
            good = readField(*container, part);
        } else if (part.kind == BinaryFormat::Unknown) {
            good = unknown && unknown->getNumChildren() == 0 && readUnknown(*unknown, part);
        } else {
            SoBase* child = nullptr;
            good = readObject(part, child);
            // A node that is kept as text has its children in the text.
            const bool isText = unknown && !unknown->getBodyText().empty();
            if (child && !isText && node && node->hasFileChildren() && child->isOfType(SoNode::getClassTypeId()))
                node->getChildren()->append(static_cast<SoNode*>(child));
        }
        m_in.updateProgress(body.at);
    }
    container->enableNotify(true);
    --m_depth;
    m_made[number].isOpen = false;
    if (node)
        node->readFinished(m_in);
    return good;
}

bool BinaryReader::readUnknown(SoUnknownNode& node, const Chunk& chunk)
{
    // The ascii reader knows how declarations look; a brace ends what it reads.
    const std::string text =
        "DEF x " + node.getNodeTypeName() + " { " + std::string(chunk.body.at, chunk.body.size()) + "\n}";
    SoInput in;
    in.setBuffer(text.data(), text.size());
    SoFieldContainer* container = nullptr;
    if (!in.sceneReader().readContainer(SoNode::getClassTypeId(), container) || !container ||
        !container->isOfType(SoUnknownNode::getClassTypeId()))
        return post(chunk.body.at, "the declarations of an unknown node cannot be read");
    node.copyDeclarations(static_cast<const SoUnknownNode&>(*container));
    return true;
}

bool BinaryReader::readField(SoFieldContainer& container, const Chunk& chunk)
{
    Bytes body = chunk.body;
    std::string_view name;
    std::uint32_t flags = 0;
    std::uint32_t kind = 0;
    std::uint64_t count = 0;
    if (!nameAt(chunk.argument, name, body.at) || !take(body, flags) || !take(body, kind) || !take(body, count))
        return false;
    SoField* field = container.getField(SbName(name));
    if (!field) {
        post(chunk.body.at, ("\"" + std::string(name) + "\" is no field of " +
                             container.getTypeId().getName().getString() + "; it is passed over")
                                .c_str());
        return true;
    }
    field->disconnect(); // a new object may have connections of its own
    std::vector<SoBase*> objects;
    Chunk connection;
    while (body.size() > 0) {
        Chunk part;
        if (!takeChunk(body, part))
            return false;
        SoBase* object = nullptr;
        if (part.kind == BinaryFormat::Connection) {
            connection = part;
        } else if (part.kind == BinaryFormat::Values || part.kind == BinaryFormat::Text) {
            // A field with its default brings no value.
            if ((flags & BinaryFormat::HasValue) != 0 && !readValue(*field, part, count))
                return false;
        } else if (readObject(part, object)) {
            objects.push_back(object);
        } else {
            return false;
        }
    }
    if (kind == BinaryFormat::Container && (flags & BinaryFormat::HasValue))
        field->setReferences(objects);
    // The connection comes last: it gives the value that counts.
    if (connection.kind == BinaryFormat::Connection && !readConnection(*field, connection))
        return false;
    field->setDefault((flags & BinaryFormat::HasValue) == 0 && !field->isConnected());
    if (flags & BinaryFormat::IsIgnored)
        field->setIgnored(true);
    return true;
}

bool BinaryReader::readValue(SoField& field, const Chunk& chunk, std::uint64_t count)
{
    if (chunk.kind == BinaryFormat::Text) {
        SoInput in;
        in.setBuffer(chunk.body.at, chunk.body.size());
        if (!field.readValue(in))
            return post(chunk.body.at, "the text of a value cannot be read");
        return true;
    }
    SoField::RawValues raw;
    raw.data = chunk.body.at;
    raw.bytesPerComponent = static_cast<std::uint8_t>(chunk.argument & 0xff);
    raw.numComponents = static_cast<std::uint8_t>((chunk.argument >> 8) & 0xff);
    raw.isFloatingPoint = (chunk.argument & 65536u) != 0;
    raw.numValues = count;
    const std::uint64_t valueSize = std::uint64_t(raw.bytesPerComponent) * raw.numComponents;
    if (valueSize == 0 || count > chunk.body.size() / valueSize)
        return post(chunk.body.at, "there are fewer values than announced");
    if (!field.setRawValues(raw))
        post(chunk.body.at, "the values are not of the kind that the field holds; they are passed over");
    return true;
}

bool BinaryReader::readConnection(SoField& field, const Chunk& chunk)
{
    Bytes body = chunk.body;
    std::string_view outputName;
    Chunk part;
    if (!nameAt(chunk.argument, outputName, body.at) || !takeChunk(body, part))
        return false;
    SoFieldContainer* source = nullptr;
    bool isComplete = true;
    if (part.kind == BinaryFormat::Global) {
        SoInput in;
        in.setBuffer(part.body.at, part.body.size());
        SoField* global = nullptr;
        if (in.sceneReader().readGlobalField(global))
            source = global->getContainer();
    } else if (part.kind == BinaryFormat::Use && part.argument < m_made.size()) {
        // Also of an object that is not complete: a connection leads to it, it is not contained.
        source = m_made[part.argument].container;
        isComplete = !m_made[part.argument].isOpen;
    } else {
        SoBase* base = nullptr;
        if (!readObject(part, base))
            return false;
        if (base && base->isOfType(SoFieldContainer::getClassTypeId()))
            source = static_cast<SoFieldContainer*>(base);
    }
    const char* obstacle = source ? m_connections.connect(field, *source, outputName, isComplete) : "it has no source";
    if (obstacle)
        post(chunk.body.at, (std::string("a connection is left out: ") + obstacle).c_str());
    return true;
}

bool BinaryReader::readPath(const Chunk& chunk, SoBase*& base)
{
    Bytes body = chunk.body;
    Chunk headChunk;
    Chunk indices;
    SoBase* head = nullptr;
    if (!takeChunk(body, headChunk) || !readObject(headChunk, head) || !takeChunk(body, indices))
        return false;
    if (!head || !head->isOfType(SoNode::getClassTypeId()))
        return post(chunk.body.at, "a path without a head");
    auto* path = new SoPath(static_cast<SoNode*>(head));
    m_kept.add(path);
    for (std::uint32_t i = 0; i < chunk.argument; ++i) {
        std::uint32_t index = 0;
        if (!take(indices.body, index))
            return false;
        if (!path->append(static_cast<int>(index)))
            return post(indices.body.at, "a path leads to a child that is not there");
    }
    base = path;
    return true;
}
