#include "ReadAndWrite.h"

#include <cstdint>

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    prepareForFuzzing();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    requireStableText(readAndWrite(data, size));
    return 0;
}
