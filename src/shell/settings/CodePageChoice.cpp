// SPDX-License-Identifier: MIT
#include "shell/settings/CodePageChoice.h"

#include "ini/ProfileFile.h"
#include "text/Utf.h"

#include <algorithm>
#include <utility>

namespace quorvantis {
namespace {

/// Windows' numbers of code pages whose name is not "CP" and the number.
constexpr std::pair<std::string_view, std::string_view> kNamedNumbers[] = {
    {"20866", "KOI8-R"}, {"21866", "KOI8-U"}, {"54936", "GB18030"}, {"65001", "UTF-8"}};

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
  for (const auto& [number, name] : kNamedNumbers) {
    if (choice == number) return std::string(name);
  }
  const bool number = std::ranges::all_of(choice, [](char c) { return c >= '0' && c <= '9'; });
  return number ? "CP" + choice : choice;
}

}  // namespace

std::string ChooseCodePage(const std::filesystem::path& applicationFolder, int languageId) {
  const auto choice = ProfileFile(applicationFolder / kSettingsFile).Value(u"private", u"CodePage");
  return choice && !choice->empty() ? Named(Utf16ToUtf8(*choice)) : OfLanguage(languageId);
}

}  // namespace quorvantis
