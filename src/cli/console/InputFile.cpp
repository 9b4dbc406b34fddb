// SPDX-License-Identifier: MIT
#include "cli/console/InputFile.h"

#include "cli/console/CommandError.h"
#include "cli/console/WhyUnreadable.h"

#include <sstream>

namespace quorvantis::cli {

std::ifstream OpenInput(const std::filesystem::path& file) {
  std::error_code error;
  std::ifstream in;
  if (!std::filesystem::is_directory(file, error)) in.open(file, std::ios::binary);
  if (!in.is_open()) throw CommandError(file.string() + ": cannot be opened. " + WhyUnreadable(file));
  return in;
}

std::string ReadInput(const std::filesystem::path& file) {
  std::ifstream in = OpenInput(file);
  std::ostringstream content;
  content << in.rdbuf();
  if (in.bad()) throw CommandError(file.string() + ": cannot be read");
  return content.str();
}

void RefuseSameTarget(const std::vector<std::filesystem::path>& targets) {
  const auto isSame = [](const std::filesystem::path& a, const std::filesystem::path& b) {
    std::error_code ignored;
    return std::filesystem::equivalent(a, b, ignored) ||
           std::filesystem::weakly_canonical(std::filesystem::absolute(a, ignored), ignored) ==
               std::filesystem::weakly_canonical(std::filesystem::absolute(b, ignored), ignored);
  };
  for (std::size_t i = 0; i < targets.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      if (!targets[i].empty() && !targets[j].empty() && isSame(targets[i], targets[j]))
        throw CommandError(targets[i].string() + ": cannot be written twice; name two files");
    }
  }
}

void RefuseToOverwrite(const std::filesystem::path& source, const std::filesystem::path& target) {
  std::error_code ignored;
  if (!target.empty() && std::filesystem::equivalent(source, target, ignored)) {
    throw CommandError(target.string() + ": is a file to read; name another one to write");
  }
}

}  // namespace quorvantis::cli
