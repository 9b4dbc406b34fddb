// SPDX-License-Identifier: MIT
#include "platform/programs/ChildProgram.h"

#include "platform/programs/TimeLimits.h"

#include <cstdlib>
#include <sstream>
#include <thread>
#include <unistd.h>

namespace quorvantis {
namespace fs = std::filesystem;

ChildEnd RunChildProgram(const ChildOrder& order, std::chrono::milliseconds limit,
                         const std::function<bool()>& isCancelled) {
  const auto deadline = std::chrono::steady_clock::now() + limit;
  const auto child = ChildProcess::Start(order);
  if (child == nullptr) return ChildEnd::NotStarted;
  for (;; std::this_thread::sleep_for(kBetweenLooksAtPrograms)) {
    if (const auto end = child->End()) return *end;
    if (isCancelled && isCancelled()) return ChildEnd::Cancelled;
    if (std::chrono::steady_clock::now() > deadline) return ChildEnd::TimedOut;
  }
}

ChildOutput RunForOutput(const ChildOrder& order, std::chrono::milliseconds limit, std::size_t mostBytes) {
  const auto deadline = std::chrono::steady_clock::now() + limit;
  const auto child = ChildProcess::Start(order);
  std::string output;
  if (child == nullptr) return {ChildEnd::NotStarted, output};
  for (;; std::this_thread::sleep_for(kBetweenLooksAtPrograms)) {
    const std::optional<ChildEnd> end = child->End();  // before the output, which is then all there is
    for (std::string part; !(part = child->ReadOutput()).empty() && output.size() <= mostBytes;)
      output += part;
    if (output.size() > mostBytes) return {ChildEnd::Failed, output};
    if (end) return {*end, output};
    if (std::chrono::steady_clock::now() > deadline) return {ChildEnd::TimedOut, output};
  }
}

fs::path FindProgram(const std::string& name) {
  const char* const path = std::getenv("PATH");  // NOLINT(concurrency-mt-unsafe): nothing sets it
  std::istringstream folders(path == nullptr ? "" : path);
  for (std::string folder; std::getline(folders, folder, ':');) {
    const fs::path program = fs::path(folder) / name;
    if (fs::path(folder).is_absolute() && ::access(program.c_str(), X_OK) == 0 &&
        fs::is_regular_file(program))
      return program;
  }
  return {};
}

}  // namespace quorvantis
