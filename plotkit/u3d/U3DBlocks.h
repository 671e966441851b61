#pragma once

#include <plotkit/u3d/U3DBitStream.h>

/** The blocks of ECMA-363 that this library writes. */
enum class U3DBlockType : std::uint32_t {
    FileHeader = 0x00443355,
    ModifierChain = 0xFFFFFF14,
    GroupNode = 0xFFFFFF21,
    ModelNode = 0xFFFFFF22,
    LightNode = 0xFFFFFF23,
    ViewNode = 0xFFFFFF24,
    MeshDeclaration = 0xFFFFFF31,
    LineSetDeclaration = 0xFFFFFF37,
    BaseMeshContinuation = 0xFFFFFF3B,
    LineSetContinuation = 0xFFFFFF3F,
    ShadingModifier = 0xFFFFFF45,
    LightResource = 0xFFFFFF51,
    ViewResource = 0xFFFFFF52,
    LitTextureShader = 0xFFFFFF53,
    MaterialResource = 0xFFFFFF54
};

/** What the first block of a chain declares. */
enum class U3DChainType : std::uint32_t { Node = 0, ModelResource = 1 };

/** Bytes of a block with so many bytes of data. */
std::uint64_t u3dBlockSize(std::size_t dataSize);
/** Appends a block without metadata. */
void appendU3DBlock(U3DBytes& bytes, U3DBlockType type, const U3DBytes& data);
/** The same, of data that come in two parts. */
void appendU3DBlock(U3DBytes& bytes, U3DBlockType type, const U3DBytes& begin, const U3DBytes& end);
/** Appends a modifier chain around complete blocks. */
void appendU3DChain(U3DBytes& bytes, std::string_view name, U3DChainType type, std::uint32_t numBlocks,
                    const U3DBytes& blocks);
