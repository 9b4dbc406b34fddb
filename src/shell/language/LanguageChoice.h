// SPDX-License-Identifier: MIT
#pragma once

#include "shell/language/LanguageList.h"
#include "shell/language/LanguageSetting.h"

#include <optional>
#include <string>
#include <vector>

namespace quorvantis {

/// The rules of the language dialog.
class LanguageChoice {
 public:
  /// All must outlive this. `languageId` is what the choice changes.
  LanguageChoice(const LanguageList& languages, LanguageSetting& setting, int& languageId)
      : languages_(languages), setting_(setting), languageId_(languageId) {}

  /// The names in the order of the list; none is empty.
  std::vector<std::u16string> Names() const;

  /// The first language with the wanted identifier; nothing if there is none.
  std::optional<std::size_t> Selected() const { return languages_.IndexOf(languageId_); }

  /// The user has selected an entry. It is saved at once and stays, even if the dialog is cancelled.
  void Select(std::size_t index);

 private:
  const LanguageList& languages_;
  LanguageSetting& setting_;
  int& languageId_;
};

}  // namespace quorvantis
