#include "IncludeRules.h"
#include "RepositoryFiles.h"

#include <algorithm>
#include <filesystem>
#include <sstream>

namespace {

/** What one part of the repository may include of the others. The longest matching folder counts. */
struct PartRule {
    const char* folder;
    std::vector<std::string> mayInclude; ///< folders, besides its own
    bool mayUseWidgets;
    const char* advice;
};

const std::vector<PartRule>& partRules()
{
    static const std::vector<PartRule> Rules{
        {"vexel/viewer",
         {"vexel"},
         true,
         "the viewer library shows scenes; what it needs to tell others goes through a signal or callback"},
        {"vexel",
         {},
         false,
         "the toolkit knows nothing of those above it and draws without widgets; move the code to vexel/viewer/ or "
         "above"},
        {"spanora", {"vexel"}, false, "module loading knows the toolkit only"},
        {"plotkit", {"vexel"}, false, "vector export knows the toolkit only; pass in what it needs"},
        {"extension",
         {"vexel", "vexel/viewer"},
         true,
         "extension/ is the border between inspector and plug-ins; declare an interface here and implement it in "
         "nodescope/"},
        {"plugins", {"extension", "vexel"}, true, "a plug-in reaches the inspector only through extension/"},
        {"nodescope",
         {"extension", "plotkit", "spanora", "vexel", "vexel/viewer"},
         true,
         "the inspector reaches a plug-in only through extension/"},
        {"apps",
         {"nodescope", "plotkit", "spanora", "vexel", "vexel/viewer"},
         true,
         "programs are a few lines over the libraries"},
        {"examples",
         {"extension", "nodescope/entry", "vexel", "vexel/viewer"},
         true,
         "examples use what a host or plug-in writer can use"},
    };
    return Rules;
}

bool isInFolder(const std::string& path, const std::string& folder)
{
    return startsWith(path, folder + "/");
}

const PartRule* partOf(const std::string& path)
{
    const auto& rules = partRules();
    const auto rule =
        std::find_if(rules.begin(), rules.end(), [&](const auto& r) { return isInFolder(path, r.folder); });
    return rule == rules.end() ? nullptr : &*rule;
}

bool isWidgetsHeader(const std::string& target)
{
    if (startsWith(target, "QtWidgets") || startsWith(target, "QtPrintSupport"))
        return true;
    std::istringstream folders(QT_WIDGETS_HEADERS);
    for (std::string folder; std::getline(folders, folder, '|');) {
        if (endsWith(folder, "/QtWidgets") && std::filesystem::is_regular_file(folder + "/" + target))
            return true;
    }
    return false;
}

bool mayInclude(const PartRule& from, const PartRule& to, const std::string& target)
{
    return &from == &to || std::any_of(from.mayInclude.begin(), from.mayInclude.end(), [&](const std::string& folder) {
        return folder == to.folder || (folder.size() > std::string(to.folder).size() && isInFolder(target, folder));
    });
}

} // namespace

std::vector<Include> includesOf(const std::string& text)
{
    std::vector<Include> includes;
    std::istringstream lines(text);
    std::size_t offset = 0;
    for (std::string line; std::getline(lines, line); offset += line.size() + 1) {
        std::istringstream words(line);
        std::string word;
        char opening = 0;
        if (words >> std::ws && words.get() == '#' && words >> word && startsWith(word, "include")) {
            const auto start = line.find_first_of("<\"", line.find("include"));
            if (start == std::string::npos)
                continue;
            opening = line[start];
            const auto end = line.find(opening == '<' ? '>' : '"', start + 1);
            includes.push_back({line.substr(start + 1, end - start - 1), offset});
        }
    }
    return includes;
}

std::optional<std::string> includeProblem(const std::string& path, const std::string& target)
{
    if (startsWith(target, "../"))
        return "includes '" + target + "'; write the path from the repository root instead: #include <folder/Header.h>";

    const PartRule* from = partOf(path);
    if (!from)
        return std::nullopt; // tests, benchmarks and fuzz targets may look everywhere
    if (!from->mayUseWidgets && isWidgetsHeader(target))
        return std::string(from->folder) + "/ may not include the widget header '" + target + "': " + from->advice;

    const PartRule* to = partOf(target);
    if (!to)
        return std::nullopt;
    if (!mayInclude(*from, *to, target))
        return std::string(from->folder) + "/ may not include '" + target + "': " + from->advice;
    if (from != to && target.find("/detail/") != std::string::npos)
        return "'" + target + "' is private to " + to->folder +
               "/; use a public header, or move what is needed into one";
    return std::nullopt;
}
