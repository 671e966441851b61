#include "ReadAndWrite.h"

#include <cstdint>
#include <cstring>
#include <string>

#include <zlib.h>

#include <vexel/io/detail/BinaryFormat.h>

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    prepareForFuzzing();
    return 0;
}

// The input is what stands behind the preamble: with a random check sum no input would ever get past it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::string scene = "#Vexel V2.1 binary";
    scene.resize(BinaryFormat::padded(scene.size() + 1) - 1, ' ');
    scene += '\n';
    const std::uint32_t version = BinaryFormat::Version;
    const std::uint64_t length = size;
    const auto checkSum = static_cast<std::uint32_t>(crc32_z(0, data, size));
    std::string preamble(BinaryFormat::PreambleSize, '\0');
    std::memcpy(&preamble[0], BinaryFormat::Magic, sizeof BinaryFormat::Magic);
    std::memcpy(&preamble[4], &version, sizeof version);
    std::memcpy(&preamble[8], &length, sizeof length);
    std::memcpy(&preamble[16], &checkSum, sizeof checkSum);
    scene += preamble;
    scene.append(reinterpret_cast<const char*>(data), size);
    requireStableText(readAndWrite(scene.data(), scene.size()));
    return 0;
}
