// SPDX-License-Identifier: MIT
#include "exchange/markup/Addresses.h"

#include "text/AsciiCase.h"
#include "text/Utf.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// Blanks and control characters do not count in the scheme of an address.
std::u16string SchemeOf(std::u16string_view address) {
  std::u16string scheme;
  for (const char16_t unit : address) {
    if (unit == u':') return scheme;
    if (unit == u'/' || unit == u'?' || unit == u'#' || scheme.size() > 12) return {};
    if (unit > u' ') scheme.push_back(AsciiLower(unit));
  }
  return {};
}

int HexadecimalValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  const char lower = static_cast<char>(c | 0x20);
  return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

bool IsSafeInAddresses(char c) {
  const char lower = static_cast<char>(c | 0x20);
  return (c >= '0' && c <= '9') || (lower >= 'a' && lower <= 'z') || c == '-' || c == '.' || c == '_' ||
         c == '~';
}

}  // namespace

bool RunsSomething(std::u16string_view address) {
  const std::u16string scheme = SchemeOf(address);
  return scheme == u"javascript" || scheme == u"vbscript" ||
         (scheme == u"data" && !address.starts_with(u"data:image/"));
}

bool IsOfTheNet(std::u16string_view address) {
  const std::u16string scheme = SchemeOf(address);
  return scheme == u"http" || scheme == u"https" || scheme == u"mailto" || scheme == u"ftp" ||
         address.starts_with(u"//");
}

std::u16string FileNameIn(std::u16string_view address) {
  address = address.substr(0, address.find_first_of(u"?#"));
  address.remove_prefix(address.rfind(u'/') + 1);  // not found: all of it
  const std::string bytes = Utf16ToUtf8(address);
  std::string name;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const bool isEscape = bytes[i] == '%' && i + 2 < bytes.size() && HexadecimalValue(bytes[i + 1]) >= 0 &&
                          HexadecimalValue(bytes[i + 2]) >= 0;
    name.push_back(
        isEscape ? static_cast<char>(HexadecimalValue(bytes[i + 1]) * 16 + HexadecimalValue(bytes[i + 2]))
                 : bytes[i]);
    if (isEscape) i += 2;
  }
  return Utf8ToUtf16(name);
}

std::u16string PackageName(std::u16string_view name) {
  std::u16string safe(name);
  for (char16_t& unit : safe) {
    if (unit > u'~' || unit == u'~' || !IsSafeInAddresses(static_cast<char>(unit))) unit = u'_';
  }
  if (safe.find_first_not_of(u'.') == safe.npos) safe.assign(safe.size(), u'_');  // another folder
  return safe;
}

bool WasCalled(std::u16string_view packageName, std::u16string_view name) {
  const bool isName = !name.empty() && name.find_first_of(u"/\\") == name.npos &&
                      std::all_of(name.begin(), name.end(), [](char16_t unit) { return unit >= u' '; });
  const bool endsWithName = packageName.ends_with(name) || packageName.ends_with(PackageName(name));
  if (!isName || !endsWithName) return false;
  std::u16string_view number = packageName.substr(0, packageName.size() - name.size());
  if (number.empty()) return true;
  return number.size() > 1 && number.ends_with(u'-') &&
         number.find_first_not_of(u"0123456789") == number.size() - 1;
}

std::string AddressPart(std::u16string_view name) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string part;
  for (const char c : Utf16ToUtf8(name)) {
    if (IsSafeInAddresses(c)) {
      part.push_back(c);
    } else {
      const auto byte = static_cast<unsigned char>(c);
      part.append({'%', kDigits[byte / 16], kDigits[byte % 16]});
    }
  }
  return part;
}

}  // namespace quorvantis
