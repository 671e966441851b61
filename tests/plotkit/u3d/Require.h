#pragma once

#include <stdexcept>
#include <string>

inline void require(bool isRight, const std::string& problem)
{
    if (!isRight)
        throw std::runtime_error(problem);
}
