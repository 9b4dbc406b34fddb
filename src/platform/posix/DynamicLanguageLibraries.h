// SPDX-License-Identifier: MIT
#pragma once

#include "platform/LanguageLibraries.h"

namespace quorvantis {

/// Language libraries as dynamic libraries that export the functions of quorvantis/LanguageLibrary.h. A
/// missing function is no fault: the library has then no texts or pictures of that kind. The code of a
/// library runs in this program; one that crashes takes the program with it.
class DynamicLanguageLibraries : public LanguageLibraries {
 public:
  /// `file` is a full path.
  std::unique_ptr<LanguageLibrary> Load(const std::filesystem::path& file) override;
};

}  // namespace quorvantis
