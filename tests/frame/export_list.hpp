// The names of the one export list, in table order, read from the list itself.
#pragma once

#include <string>
#include <vector>

namespace kt {

inline const std::vector<std::string>& exportList()
{
#define KROI_EXPORT(name, impl) #name,
    static const std::vector<std::string> names = {
#include "exports.inc"
    };
#undef KROI_EXPORT
    return names;
}

}  // namespace kt
