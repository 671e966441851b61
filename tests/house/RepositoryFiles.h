#pragma once

#include <string>
#include <vector>

/** A text file of the repository. */
struct RepositoryFile {
    std::string path; ///< from the repository root, with forward slashes
    std::string text;

    /** Number, from 1, of the line that holds the character at `offset`. */
    std::size_t lineAt(std::size_t offset) const;
    /** "path:line", for messages. */
    std::string at(std::size_t offset) const;
};

/** All text files that belong to the repository, build trees left out; read once. */
const std::vector<RepositoryFile>& repositoryFiles();

bool startsWith(const std::string& text, const std::string& start);
bool endsWith(const std::string& text, const std::string& end);
bool isCppFile(const RepositoryFile& file);
