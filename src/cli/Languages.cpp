// SPDX-License-Identifier: MIT
#include "cli/Languages.h"

#include "cli/CommandError.h"
#include "cli/CommandOptions.h"
#include "cli/Commands.h"
#include "platform/posix/ApplicationFolder.h"
#include "platform/posix/DynamicLanguageLibraries.h"
#include "shell/language/LanguageId.h"
#include "shell/language/LanguageList.h"
#include "text/Utf.h"

#include <algorithm>
#include <ostream>

namespace quorvantis::cli {
namespace fs = std::filesystem;
namespace {

LanguageList FindLanguages(const fs::path& applicationFolder) {
  const fs::path programFolder = ExecutableFolder();
  const fs::path own = applicationFolder.empty() ? programFolder : fs::absolute(applicationFolder);
  const fs::path folder = LanguageFolder(own.lexically_normal(), programFolder);
  DynamicLanguageLibraries libraries;
  std::error_code error;
  LanguageList list = ScanLanguageLibraries(folder, libraries, error);
  if (error) throw CommandError(folder.string() + ": no folder of languages (" + error.message() + ")");
  if (list.Count() == 0) {
    throw CommandError(folder.string() + ": has no language libraries; put one there or build \"languages\"");
  }
  return list;
}

/// The terminal columns of a text: two for East Asian characters.
std::size_t Width(std::u16string_view text) {
  constexpr char16_t kFirstWide = 0x2E80;
  constexpr auto isWide = [](char16_t unit) { return unit >= kFirstWide && !IsLowSurrogate(unit); };
  return text.size() + static_cast<std::size_t>(std::ranges::count_if(text, isWide)) -
         static_cast<std::size_t>(std::ranges::count_if(text, IsLowSurrogate));
}

void ListLanguages(Console& console, const CommonOptions& options) {
  const LanguageList list = FindLanguages(options.appFolder);
  std::size_t widest = 0;
  for (std::size_t i = 0; i < list.Count(); ++i) widest = std::max(widest, Width(list.DisplayName(i)));
  for (std::size_t i = 0; i < list.Count(); ++i) {
    const std::u16string name = list.DisplayName(i);
    console.out << FormatLanguageId(list.languageIds[i]) << "  " << Utf16ToUtf8(name)
                << std::string(widest - Width(name) + 2, ' ') << list.languageFiles[i].string() << "\n";
  }
}

}  // namespace

std::unique_ptr<LanguageLibrary> LoadLanguage(const fs::path& applicationFolder, int languageId) {
  const LanguageList list = FindLanguages(applicationFolder);
  const auto index = list.IndexOf(languageId);
  std::unique_ptr<LanguageLibrary> library =
      index ? DynamicLanguageLibraries().Load(list.languageFiles[*index]) : nullptr;
  if (library) return library;
  throw CommandError("there is no language " + FormatLanguageId(languageId) +
                     "; \"quorvantis-cli languages\" lists those that there are");
}

void AddLanguages(CLI::App& app, CommandContext& context) {
  CLI::App* languages = AddCommand(app, context, "languages", "List the installed languages");
  languages->footer("One line each: identifier, name, file.");
  languages->callback([&context] { ListLanguages(context.console, context.common); });
}

}  // namespace quorvantis::cli
