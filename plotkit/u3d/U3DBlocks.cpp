#include "U3DBlocks.h"

namespace {

constexpr std::uint64_t Head_size = 12;

std::size_t padding(std::size_t size)
{
    return (4 - size % 4) % 4;
}

} // namespace

std::uint64_t u3dBlockSize(std::size_t dataSize)
{
    return Head_size + dataSize + padding(dataSize);
}

void appendU3DBlock(U3DBytes& bytes, U3DBlockType type, const U3DBytes& data)
{
    appendU3DBlock(bytes, type, data, {});
}

void appendU3DBlock(U3DBytes& bytes, U3DBlockType type, const U3DBytes& begin, const U3DBytes& end)
{
    const std::size_t size = begin.size() + end.size();
    U3DBitStream head;
    head.putU32(std::uint32_t(type));
    head.putU32(std::uint32_t(size));
    head.putU32(0);
    const U3DBytes headBytes = head.finish();
    bytes.insert(bytes.end(), headBytes.begin(), headBytes.end());
    bytes.insert(bytes.end(), begin.begin(), begin.end());
    bytes.insert(bytes.end(), end.begin(), end.end());
    bytes.insert(bytes.end(), padding(size), 0);
}

void appendU3DChain(U3DBytes& bytes, std::string_view name, U3DChainType type, std::uint32_t numBlocks,
                    const U3DBytes& blocks)
{
    U3DBitStream head;
    head.putString(name);
    head.putU32(std::uint32_t(type));
    head.putU32(0); // neither sphere nor box around the contents
    for (std::size_t i = padding(2 + name.size()); i > 0; --i)
        head.putU8(0);
    head.putU32(numBlocks);
    appendU3DBlock(bytes, U3DBlockType::ModifierChain, head.finish(), blocks);
}
