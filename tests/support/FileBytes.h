// The bytes of any file, for tests.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

inline std::string BytesIn(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

inline void SetBytes(const std::filesystem::path& file, const std::string& bytes) {
    std::ofstream(file, std::ios::binary) << bytes;
}
