// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

namespace quorvantis {

/// The components that other programs have registered with the system, as far as pages can embed them.
class ClassRegistry {
 public:
  virtual ~ClassRegistry() = default;

  /// The file that is registered as the in-process server of a class ("{0133388C-…}"), which need not exist.
  /// Nothing when there is no such class, or no registry.
  virtual std::optional<std::filesystem::path> InprocServer(std::u16string_view classId) const = 0;
};

}  // namespace quorvantis
