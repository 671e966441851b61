#include "RepositoryFiles.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

namespace fs = std::filesystem;

namespace {

// Larger files are data (meshes, pictures), not something that people write.
constexpr std::uintmax_t Largest_text_file = 256 * 1024;

bool isSkippedFolder(const fs::path& folder)
{
    static const std::set<std::string> Names{".git", "build", ".cache", "__pycache__"};
    return Names.count(folder.filename().string()) != 0;
}

std::vector<RepositoryFile> readAll()
{
    std::vector<RepositoryFile> files;
    const fs::path root = SOURCE_FOLDER;
    for (auto entry = fs::recursive_directory_iterator(root); entry != fs::recursive_directory_iterator(); ++entry) {
        if (entry->is_directory()) {
            if (isSkippedFolder(entry->path()))
                entry.disable_recursion_pending();
            continue;
        }
        if (!entry->is_regular_file() || entry->file_size() > Largest_text_file)
            continue;
        std::ifstream stream(entry->path(), std::ios::binary);
        std::string text{std::istreambuf_iterator<char>(stream), {}};
        if (text.find('\0') == std::string::npos)
            files.push_back({entry->path().lexically_relative(root).generic_string(), std::move(text)});
    }
    std::sort(files.begin(), files.end(), [](const auto& a, const auto& b) { return a.path < b.path; });
    return files;
}

} // namespace

const std::vector<RepositoryFile>& repositoryFiles()
{
    static const std::vector<RepositoryFile> files = readAll();
    return files;
}

std::size_t RepositoryFile::lineAt(std::size_t offset) const
{
    return 1 + std::size_t(std::count(text.begin(), text.begin() + std::ptrdiff_t(offset), '\n'));
}

std::string RepositoryFile::at(std::size_t offset) const
{
    return path + ":" + std::to_string(lineAt(offset));
}

bool startsWith(const std::string& text, const std::string& start)
{
    return text.compare(0, start.size(), start) == 0;
}

bool endsWith(const std::string& text, const std::string& end)
{
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

bool isCppFile(const RepositoryFile& file)
{
    return endsWith(file.path, ".cpp") || endsWith(file.path, ".h");
}
