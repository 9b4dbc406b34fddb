// SPDX-License-Identifier: MIT
#pragma once

#include "platform/LanguageLibraries.h"

namespace quorvantis {

/// The source of everything users see: the language library in use, and the built-in texts where that has
/// none. Pictures come from the library only. CQuorvantisApp chooses the library, also when the wanted one is
/// gone; on the command line, cli/session/Languages.h does.
class LanguageInUse : public LanguageLibrary {
 public:
  /// Switches to `library`, which may be null.
  void Use(std::unique_ptr<LanguageLibrary> library) { library_ = std::move(library); }

  bool HasLibrary() const { return library_ != nullptr; }

  std::optional<std::uint16_t> Id() const override;
  bool HasText(int number) const override;
  std::u16string Text(int number) const override;
  std::u16string DialogText(int dialog, int control) const override;
  std::span<const std::byte> Bitmap(std::string_view name, int scale) const override;

 private:
  std::unique_ptr<LanguageLibrary> library_;
};

}  // namespace quorvantis
