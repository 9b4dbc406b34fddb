// SPDX-License-Identifier: MIT
#include "editor/ProposedFileName.h"

#include "text/AsciiCase.h"
#include "text/ControlCharacters.h"
#include "text/Utf.h"
#include "text/WithoutAround.h"

namespace quorvantis {
namespace {

constexpr std::size_t kMostUnits = 80;  // enough to read, and never too many bytes for a file system
constexpr std::u16string_view kForbidden = u"/\\:*?\"<>|";  // by some system

char16_t AllowedUnit(char16_t unit) {
  return IsControl(unit) || kForbidden.find(unit) != kForbidden.npos ? u' ' : unit;
}

/// Runs of blanks become one.
std::u16string OnlyAllowed(std::u16string_view title) {
  std::u16string name;
  for (const char16_t unit : ReplaceLoneSurrogates(title)) {
    const char16_t allowed = AllowedUnit(unit);
    if (allowed != u' ' || (!name.empty() && name.back() != u' ')) name += allowed;
  }
  return name;
}

/// A leading dot would hide the file, and a trailing one is not allowed everywhere.
std::u16string_view WithoutDotsAround(std::u16string_view name) {
  return WithoutAround(name, u". ");
}

bool EndsInSurrogate(std::u16string_view name) {
  return !name.empty() && (name.back() & 0xFC00) == 0xD800;
}

}  // namespace

std::u16string ProposedFileName(std::u16string_view title) {
  const std::u16string allowed = OnlyAllowed(title);
  std::u16string_view name = WithoutDotsAround(allowed).substr(0, kMostUnits);
  if (EndsInSurrogate(name)) name.remove_suffix(1);
  name = WithoutDotsAround(name);
  if (name.empty()) return u"MyExam";
  const bool isDocument = AsciiLower(name).ends_with(u".doc");
  return std::u16string(name) + (isDocument ? u".exm" : u"");
}

}  // namespace quorvantis
