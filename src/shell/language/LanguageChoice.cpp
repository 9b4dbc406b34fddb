// SPDX-License-Identifier: MIT
#include "shell/language/LanguageChoice.h"

namespace quorvantis {

std::vector<std::u16string> LanguageChoice::Names() const {
  std::vector<std::u16string> names;
  for (std::size_t i = 0; i < languages_.Count(); ++i) names.push_back(languages_.DisplayName(i));
  return names;
}

void LanguageChoice::Select(std::size_t index) {
  if (index >= languages_.Count()) return;
  languageId_ = languages_.languageIds[index];
  setting_.Write(languageId_);
}

}  // namespace quorvantis
