#include <vexel/base/detail/CallStack.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include <cxxabi.h>
#include <dlfcn.h>
#include <execinfo.h>

namespace vexel::detail {

namespace {

constexpr int MaxFrames = 128;

std::string demangled(const char* symbol)
{
    int status = 0;
    const std::unique_ptr<char, void (*)(void*)> name(abi::__cxa_demangle(symbol, nullptr, nullptr, &status),
                                                      &std::free);
    return name ? name.get() : symbol;
}

std::string withOffset(const std::string& name, const void* address, const void* base)
{
    char offset[32];
    std::snprintf(
        offset, sizeof(offset), " + 0x%zx",
        static_cast<std::size_t>(reinterpret_cast<std::uintptr_t>(address) - reinterpret_cast<std::uintptr_t>(base)));
    return name + offset;
}

std::string describeFrame(const void* address)
{
    Dl_info info;
    if (!dladdr(address, &info) || !info.dli_fname)
        return withOffset("unknown code", address, nullptr);
    const std::string place = withOffset(info.dli_fname, address, info.dli_fbase);
    return info.dli_sname ? withOffset(demangled(info.dli_sname), address, info.dli_saddr) + " (" + place + ")" : place;
}

} // namespace

std::string describeCallStack(const void* returnAddress)
{
    void* frames[MaxFrames];
    void** const end = frames + backtrace(frames, MaxFrames);
    void** first = std::find(frames, end, returnAddress);
    if (first == end)
        first = frames;
    std::string text;
    for (void** frame = first; frame != end; ++frame)
        text += "#" + std::to_string(frame - first) + " " + describeFrame(*frame) + "\n";
    return text;
}

} // namespace vexel::detail
