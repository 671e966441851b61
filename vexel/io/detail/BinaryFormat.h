#pragma once

#include <cstddef>
#include <cstdint>

/**
 * The binary form of a scene. Behind the header line, which is padded to a multiple of 16 bytes, stand a preamble and
 * chunks. All numbers are little-endian.
 *
 * Preamble, 32 bytes: "VXB1", version (u32), bytes that follow it (u64), their CRC-32 as gzip computes it (u32), zeros.
 *
 * A chunk is a head of 16 bytes (kind u32, argument u32, length of the body in bytes u64) and a body, padded to a
 * multiple of 16. A reader passes over kinds that it does not know.
 *
 *   kind        argument          body
 *   Names       number of names   each a length (u32) and as many bytes; the first chunk of a file
 *   Container   type, as a name   DEF name or 0, flags (2 x u32), 8 zero bytes; then chunks: Unknown, Field, objects
 *   Use         which Container   nothing; they are counted from 0 in the order in which they begin
 *   Null        0                 nothing
 *   Path        number of indices chunk of the head; chunk Values with the indices as u32
 *   Global      0                 the ascii text of a global field
 *   Unknown     1 if declared     the ascii text that follows the opening brace of an unknown node
 *   Field       field, as a name  flags (u32), kind of value (u32), number of values (u64); then chunks: Values or Text
 * or objects, and Connection Values      kind of component numbers Text        0                 ascii text Connection
 * output, as a name chunk of the source, or of a Global
 *
 * Name 0 is the empty name. A kind of component is its number of bytes, plus 256 times the number of components of a
 * value, plus 65536 for floating-point numbers.
 */
namespace BinaryFormat {

constexpr char Magic[4] = {'V', 'X', 'B', '1'};
constexpr std::uint32_t Version = 1;
constexpr std::size_t PreambleSize = 32;
constexpr std::size_t HeadSize = 16;
constexpr std::size_t Alignment = 16;

enum Kind : std::uint32_t {
    Names = 1,
    Container = 2,
    Use = 3,
    Null = 4,
    Path = 5,
    Global = 6,
    Unknown = 7,
    Field = 8,
    Values = 9,
    Text = 10,
    Connection = 11
};

enum FieldFlag : std::uint32_t { HasValue = 1, IsIgnored = 2 };

constexpr std::size_t padded(std::size_t size)
{
    return (size + Alignment - 1) / Alignment * Alignment;
}

} // namespace BinaryFormat
