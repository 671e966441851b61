#include <vexel/io/detail/BinaryWriter.h>

#include <cstring>

#include <zlib.h>

#include <vexel/base/SoPath.h>
#include <vexel/engines/SoEngine.h>
#include <vexel/engines/SoEngineOutput.h>
#include <vexel/fields/SoField.h>
#include <vexel/fields/SoFieldContainer.h>
#include <vexel/io/SoOutput.h>
#include <vexel/io/detail/BinaryFormat.h>
#include <vexel/io/detail/GlobalFields.h>
#include <vexel/nodes/SoUnknownNode.h>

static_assert(__BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__, "blocks of numbers are written as they stand in memory");

namespace {

void append(std::string& bytes, const void* data, std::size_t size)
{
    bytes.append(static_cast<const char*>(data), size);
}

// The ascii text of something, from a writer of its own.
template <class Write>
std::string textOf(Write&& write)
{
    SoOutput out;
    write(out);
    return out.getText();
}

} // namespace

/** One chunk while its body is written: the length is filled in at the end. */
class BinaryWriter::Chunk {
public:
    Chunk(BinaryWriter& writer, std::uint32_t kind, std::uint32_t argument) : m_writer(writer)
    {
        m_writer.putNumber(kind);
        m_writer.putNumber(argument);
        m_writer.putLongNumber(0);
        m_start = m_writer.m_body.size();
    }
    Chunk(const Chunk&) = delete;
    Chunk& operator=(const Chunk&) = delete;
    ~Chunk()
    {
        const std::uint64_t length = m_writer.m_body.size() - m_start;
        std::memcpy(&m_writer.m_body[m_start - sizeof length], &length, sizeof length);
        m_writer.pad();
    }

private:
    BinaryWriter& m_writer;
    std::size_t m_start = 0;
};

BinaryWriter::BinaryWriter(SoOutput& out) : m_out(out), m_names(out.sceneWriter())
{
    nameIndex("");
}

std::uint32_t BinaryWriter::nameIndex(std::string_view name)
{
    const auto [place, isNew] =
        m_nameIndices.try_emplace(std::string(name), static_cast<std::uint32_t>(m_nameIndices.size()));
    if (isNew) {
        const auto length = static_cast<std::uint32_t>(name.size());
        append(m_nameTable, &length, sizeof length);
        m_nameTable.append(name);
    }
    return place->second;
}

void BinaryWriter::putNumber(std::uint32_t number)
{
    append(m_body, &number, sizeof number);
}

void BinaryWriter::putLongNumber(std::uint64_t number)
{
    append(m_body, &number, sizeof number);
}

void BinaryWriter::pad()
{
    m_body.resize(BinaryFormat::padded(m_body.size()), '\0');
}

void BinaryWriter::write(const SoNode& root, const SoPath* path)
{
    if (path)
        writePath(path);
    else
        writeContainer(&root);

    // The names are known only now, and stand in front.
    std::string scene;
    scene.swap(m_body);
    {
        const Chunk names(*this, BinaryFormat::Names, static_cast<std::uint32_t>(m_nameIndices.size()));
        m_body += m_nameTable;
    }
    uLong checkSum = crc32_z(0, reinterpret_cast<const Bytef*>(m_body.data()), m_body.size());
    checkSum = crc32_z(checkSum, reinterpret_cast<const Bytef*>(scene.data()), scene.size());

    std::string front;
    front.swap(m_body);
    append(m_body, BinaryFormat::Magic, sizeof BinaryFormat::Magic);
    putNumber(BinaryFormat::Version);
    putLongNumber(front.size() + scene.size());
    putNumber(static_cast<std::uint32_t>(checkSum));
    m_body.resize(BinaryFormat::PreambleSize, '\0');
    m_out.write(m_body);
    m_out.write(front);
    m_out.write(scene);
}

void BinaryWriter::writeText(std::uint32_t kind, std::uint32_t argument, std::string_view text)
{
    const Chunk chunk(*this, kind, argument);
    m_body.append(text);
}

void BinaryWriter::writeReference(const SoBase* base)
{
    if (base && base->isOfType(SoPath::getClassTypeId()))
        writePath(static_cast<const SoPath*>(base));
    else
        writeContainer(static_cast<const SoFieldContainer*>(base));
}

void BinaryWriter::writeContainer(const SoFieldContainer* container)
{
    if (!container) {
        const Chunk chunk(*this, BinaryFormat::Null, 0);
        return;
    }
    const auto [place, isNew] = m_written.try_emplace(container, static_cast<std::uint32_t>(m_written.size()));
    if (!isNew) {
        const Chunk chunk(*this, BinaryFormat::Use, place->second);
        return;
    }
    const auto* unknown =
        container->isOfType(SoUnknownNode::getClassTypeId()) ? static_cast<const SoUnknownNode*>(container) : nullptr;
    const std::string_view typeName =
        unknown ? std::string_view(unknown->getNodeTypeName()) : container->getTypeId().getName().getView();
    const Chunk chunk(*this, BinaryFormat::Container, nameIndex(typeName));
    putNumber(nameIndex(m_names.nameOf(container)));
    pad();
    if (unknown) {
        writeText(BinaryFormat::Unknown, unknown->isDeclared() ? 1 : 0,
                  textOf([&](SoOutput& out) { out.sceneWriter().writeUnknownBody(*unknown); }));
    }
    const SoFieldData& data = container->getFieldData();
    for (int i = 0; i < data.getNumFields(); ++i) {
        const SoField* field = data.getField(container, i);
        if (container->shouldWriteField(*field))
            writeField(*container, *field, data.getFieldName(i).getView());
    }
    m_names.extract().forEachChild(*container, [this](const SoNode& child) { writeContainer(&child); });
}

void BinaryWriter::writeField(const SoFieldContainer& container, const SoField& field, std::string_view name)
{
    const Chunk chunk(*this, BinaryFormat::Field, nameIndex(name));
    const bool hasValue = container.shouldWriteValue(field);
    putNumber((hasValue ? BinaryFormat::HasValue : 0u) | (field.isIgnored() ? BinaryFormat::IsIgnored : 0u));
    SoField::RawValues raw;
    const bool isRaw = field.getRawValues(raw);
    const std::vector<SoBase*> references = field.getReferences();
    putNumber(field.holdsReferences() ? BinaryFormat::Container : (isRaw ? BinaryFormat::Values : BinaryFormat::Text));
    putLongNumber(isRaw ? raw.numValues : references.size());
    if (hasValue && field.holdsReferences()) {
        for (const SoBase* base : references)
            writeReference(base);
    } else if (hasValue && isRaw) {
        const std::uint32_t component =
            raw.bytesPerComponent + 256u * raw.numComponents + (raw.isFloatingPoint ? 65536u : 0u);
        const Chunk values(*this, BinaryFormat::Values, component);
        append(m_body, raw.data, raw.numValues * raw.numComponents * raw.bytesPerComponent);
    } else if (hasValue) {
        writeText(BinaryFormat::Text, 0, textOf([&](SoOutput& out) { field.writeValue(out); }));
    }
    if (field.isConnected())
        writeConnection(field);
}

void BinaryWriter::writeConnection(const SoField& field)
{
    const SoField* master = field.getConnectedField();
    const SoEngineOutput* output = field.getConnectedEngine();
    const Chunk chunk(*this, BinaryFormat::Connection,
                      nameIndex((master ? master->getName() : output->getName()).getView()));
    if (master && isGlobalField(*master))
        writeText(BinaryFormat::Global, 0, textOf([&](SoOutput& out) { writeGlobalField(out, *master); }));
    else
        writeContainer(master ? master->getContainer() : static_cast<const SoFieldContainer*>(output->getContainer()));
}

void BinaryWriter::writePath(const SoPath* path)
{
    if (!path || !path->getHead()) {
        writeContainer(nullptr);
        return;
    }
    const std::vector<int> indices = m_names.extract().indicesOf(*path);
    const Chunk chunk(*this, BinaryFormat::Path, static_cast<std::uint32_t>(indices.size()));
    writeContainer(path->getHead());
    const Chunk values(*this, BinaryFormat::Values, sizeof(std::uint32_t) + 256u);
    for (const int index : indices)
        putNumber(static_cast<std::uint32_t>(index));
}
