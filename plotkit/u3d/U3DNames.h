#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

/** The names of one palette of ECMA-363, where each stands once. */
class U3DNames {
public:
    /**
     * A name that is not given yet: the wanted one, or the same with a number behind it.
     * @param wanted  UTF-8; what is not is replaced, and what is very long is cut
     */
    std::string add(std::string_view wanted);

private:
    std::unordered_map<std::string, unsigned> m_numbers; ///< the last number given to each name
};
