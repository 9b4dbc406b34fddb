// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

namespace quorvantis {

class LanguageLibraries;

/// The language libraries that were found. Entry i of each list describes the same library.
struct LanguageList {
  std::vector<std::u16string> languageNames;  ///< each language's own name, empty when the library has none
  std::vector<std::uint16_t> languageIds;
  std::vector<std::filesystem::path> languageFiles;  ///< full paths

  std::size_t Count() const { return languageFiles.size(); }

  /// The first library of that identifier.
  std::optional<std::size_t> IndexOf(int languageId) const;

  /// What users see of a library: its name, or its file name if it has none.
  std::u16string DisplayName(std::size_t index) const;
};

/// The folder with the libraries: "language/Quorvantis" in the application folder if that is there, otherwise
/// the one beside the program. So an application folder elsewhere needs no copies, but can have languages of
/// its own.
std::filesystem::path LanguageFolder(const std::filesystem::path& applicationFolder,
                                     const std::filesystem::path& programFolder);

/// The libraries in `folder`, a full path, by file name: files ending in ".dll", in any case, that can be
/// loaded and have an identifier. `error` is set if the folder cannot be listed.
LanguageList ScanLanguageLibraries(const std::filesystem::path& folder, LanguageLibraries& libraries,
                                   std::error_code& error);

}  // namespace quorvantis
