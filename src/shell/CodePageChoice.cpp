// SPDX-License-Identifier: MIT
#include "shell/CodePageChoice.h"

#include "shell/ProfileFile.h"
#include "text/Utf.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// Windows' number of UTF-8 has no "CP" name.
constexpr std::string_view kUtf8Number = "65001";

std::string OfLanguage(int languageId) {
  switch (languageId) {
    case 0x0804:
      return "GBK";
    case 0x0404:
      return "BIG5";
    case 0x0411:
      return "CP932";
    case 0x0412:
      return "CP949";
    case 0x0419:
      return "CP1251";
    default:
      return "CP1252";
  }
}

std::string Named(const std::string& choice) {
  if (choice == kUtf8Number) return "UTF-8";
  const bool number = std::ranges::all_of(choice, [](char c) { return c >= '0' && c <= '9'; });
  return number ? "CP" + choice : choice;
}

}  // namespace

std::string ChooseCodePage(const std::filesystem::path& applicationFolder, int languageId) {
  const auto choice = ProfileFile(applicationFolder / "system.ini").Value(u"private", u"CodePage");
  return choice && !choice->empty() ? Named(Utf16ToUtf8(*choice)) : OfLanguage(languageId);
}

}  // namespace quorvantis
