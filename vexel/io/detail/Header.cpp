#include <vexel/io/detail/Header.h>

#include <algorithm>
#include <mutex>
#include <string>
#include <vector>

namespace {

struct KnownHeader {
    std::string line;
    SceneHeader header;
};

struct HeaderTable {
    std::vector<KnownHeader> known{
        {"#Vexel V2.1 ascii", {SceneHeader::Kind::Ascii, 0, nullptr, nullptr}},
        {"#Vexel V2.0 ascii", {SceneHeader::Kind::Ascii, 0, nullptr, nullptr}},
        {"#Vexel V2.1 binary", {SceneHeader::Kind::Binary, 0, nullptr, nullptr}},
    };
    std::mutex mutex;
};

HeaderTable& table()
{
    static HeaderTable headers;
    return headers;
}

// What follows the header's own words on the line does not matter.
bool beginsWith(std::string_view line, std::string_view header)
{
    return line.substr(0, header.size()) == header &&
           (line.size() == header.size() || line[header.size()] == ' ' || line[header.size()] == '\t');
}

} // namespace

SceneHeader SceneHeader::find(const char* data, std::size_t size)
{
    std::string_view text(data, size);
    const std::size_t mark = text.substr(0, 3) == "\xEF\xBB\xBF" ? 3 : 0;
    text.remove_prefix(mark);
    const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
    const std::string_view line = text.substr(0, end);

    HeaderTable& headers = table();
    std::lock_guard lock(headers.mutex);
    for (const KnownHeader& known : headers.known) {
        if (!beginsWith(line, known.line))
            continue;
        SceneHeader found = known.header;
        // A binary scene begins right behind the line feed.
        found.length = mark + std::min(end + 1, text.size());
        return found;
    }
    return SceneHeader();
}

bool SceneHeader::add(std::string_view line, Kind kind, void (*preRead)(void* data, SoInput* in), void* data)
{
    if (line.empty() || line.front() != '#' || line.find_first_of("\r\n") != std::string_view::npos)
        return false;
    HeaderTable& headers = table();
    std::lock_guard lock(headers.mutex);
    // Registered later, asked first: a longer header may begin with a known one.
    headers.known.insert(headers.known.begin(), {std::string(line), {kind, 0, preRead, data}});
    return true;
}
