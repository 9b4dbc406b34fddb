// SPDX-License-Identifier: MIT
#include "shell/language/LanguageList.h"

#include "platform/LanguageLibraries.h"
#include "platform/texts/ProgramTexts.h"
#include "text/AsciiCase.h"
#include "text/PathText.h"

#include <algorithm>
#include <string_view>

namespace quorvantis {
namespace fs = std::filesystem;
namespace {

constexpr std::u16string_view kExtension = u".dll";

bool IsNamedLikeLibrary(const fs::path& file) {
  const std::u16string name = PathToText(file.filename());
  return name.size() > kExtension.size() &&
         EqualsIgnoringAsciiCase(std::u16string_view(name).substr(name.size() - kExtension.size()),
                                 kExtension);
}

/// The entries of a folder that may be libraries, in the order of their names.
std::vector<fs::path> Candidates(const fs::path& folder, std::error_code& error) {
  std::vector<fs::path> files;
  std::error_code ignored;
  for (fs::directory_iterator entry(folder, error); entry != fs::directory_iterator();
       entry.increment(ignored)) {
    if (IsNamedLikeLibrary(entry->path()) && !entry->is_directory(ignored)) files.push_back(entry->path());
  }
  std::ranges::sort(files);
  return files;
}

}  // namespace

std::optional<std::size_t> LanguageList::IndexOf(int languageId) const {
  const auto found = std::ranges::find(languageIds, languageId);
  if (found == languageIds.end()) return std::nullopt;
  return static_cast<std::size_t>(found - languageIds.begin());
}

std::u16string LanguageList::DisplayName(std::size_t index) const {
  return languageNames[index].empty() ? PathToText(languageFiles[index].filename()) : languageNames[index];
}

fs::path LanguageFolder(const fs::path& applicationFolder, const fs::path& programFolder) {
  const fs::path below = fs::path("language") / "Quorvantis";
  std::error_code ignored;
  const bool ownOne = fs::exists(applicationFolder / below, ignored);
  const bool otherOne = fs::exists(programFolder / below, ignored);
  return (ownOne || !otherOne ? applicationFolder : programFolder) / below;
}

LanguageList ScanLanguageLibraries(const fs::path& folder, LanguageLibraries& libraries,
                                   std::error_code& error) {
  LanguageList list;
  for (const fs::path& file : Candidates(folder, error)) {
    const std::unique_ptr<LanguageLibrary> library = libraries.Load(file);
    const auto id = library ? library->Id() : std::nullopt;
    if (!id) continue;
    list.languageNames.push_back(library->Text(text_id::kLanguageName));
    list.languageFiles.push_back(file);
    list.languageIds.push_back(*id);
  }
  return list;
}

}  // namespace quorvantis
