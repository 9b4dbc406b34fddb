// SPDX-License-Identifier: MIT
// Runs a fuzz target on every file of a folder, so that faults found by fuzzing do not come back.
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argumentCount, char** arguments) {
  if (argumentCount != 2) return 2;
  int count = 0;
  for (const auto& entry : std::filesystem::directory_iterator(arguments[1])) {
    std::ifstream in(entry.path(), std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(in), {}};
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    ++count;
  }
  std::cout << count << " inputs replayed\n";
  return count > 0 ? 0 : 1;
}
