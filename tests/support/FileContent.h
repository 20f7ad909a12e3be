#pragma once

#include <fstream>
#include <iterator>
#include <string>

/// All that the file holds; empty when there is none.
inline std::string FileContent(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}
