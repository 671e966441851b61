#pragma once

#include <optional>
#include <string>
#include <vector>

/** One #include line. */
struct Include {
    std::string target; ///< as written between the brackets or quotes
    std::size_t offset; ///< where the line starts in the file
};

std::vector<Include> includesOf(const std::string& text);

/** Why `path` may not include `target`, and what to do instead; empty when it may. */
std::optional<std::string> includeProblem(const std::string& path, const std::string& target);
