// SPDX-License-Identifier: MIT
#include "cli/LanguagesSubcommand.h"

#include "cli/options/CommandOptions.h"
#include "cli/session/Languages.h"
#include "shell/language/LanguageId.h"
#include "text/Utf.h"

#include <algorithm>
#include <ostream>

namespace quorvantis::cli {
namespace {

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

void AddLanguages(CLI::App& app, CommandContext& context) {
  CLI::App* languages = AddCommand(app, context, "languages", "List the installed languages");
  languages->footer("One line each: identifier, name, file.");
  languages->callback([&context] { ListLanguages(context.console, context.common); });
}

}  // namespace quorvantis::cli
