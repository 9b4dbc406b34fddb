// SPDX-License-Identifier: MIT
#pragma once

#include "platform/LanguageLibraries.h"

namespace quorvantis {

/// Language libraries as dynamic libraries that export the functions of quorvantis/LanguageLibrary.h. A
/// function may be missing: the library then has no texts or pictures of that kind. A library's code runs in
/// this program; if it crashes, so does the program.
class DynamicLanguageLibraries : public LanguageLibraries {
 public:
  /// `file` is a full path.
  std::unique_ptr<LanguageLibrary> Load(const std::filesystem::path& file) override;
};

}  // namespace quorvantis
