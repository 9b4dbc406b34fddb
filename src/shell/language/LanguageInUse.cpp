// SPDX-License-Identifier: MIT
#include "shell/language/LanguageInUse.h"

#include "shell/language/BuiltInDialogTexts.h"
#include "shell/language/BuiltInStrings.h"

namespace quorvantis {

std::optional<std::uint16_t> LanguageInUse::Id() const {
  return library_ ? library_->Id() : std::nullopt;
}

bool LanguageInUse::HasText(int number) const {
  return (library_ && library_->HasText(number)) || !BuiltInStrings().Text(number).empty();
}

std::u16string LanguageInUse::Text(int number) const {
  return library_ && library_->HasText(number) ? library_->Text(number) : BuiltInStrings().Text(number);
}

std::u16string LanguageInUse::DialogText(int dialog, int control) const {
  return DialogTextOf(library_.get(), dialog, control);
}

std::span<const std::byte> LanguageInUse::Bitmap(std::string_view name, int scale) const {
  return library_ ? library_->Bitmap(name, scale) : std::span<const std::byte>();
}

}  // namespace quorvantis
