// The tables that are files of their own.
#pragma once
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace lumenote {

/// The bytes of a file of tests/data/.
inline std::string DataFile(const std::string& name) {
  std::ifstream file(std::filesystem::path(LUMENOTE_TEST_DATA) / name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace lumenote
