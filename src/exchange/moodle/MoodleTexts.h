// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/form/Format.h"
#include "exchange/markup/Markup.h"

#include <optional>
#include <pugixml.hpp>
#include <string>
#include <string_view>

namespace quorvantis {

/// Reads the texts of questions, each an element with a format, with <text> and with the files in it.
class MoodleTexts {
 public:
  explicit MoodleTexts(ReadingTools& tools) : tools_(tools) {}

  /// The exam text of an element. Its files go to `question`.
  std::u16string Read(pugi::xml_node element, ExchangedQuestion& question) const;

  /// The same for a text that may be nothing but pictures, and that is one of many: their names stand for
  /// them.
  std::u16string ReadPart(pugi::xml_node element, ExchangedQuestion& question) const;

  /// The exam text of an element with answers embedded in it. Its blanks go to `question`, and so does its
  /// score.
  std::u16string ReadCloze(pugi::xml_node element, ExchangedQuestion& question) const;

  /// A text whose files are not wanted. What it loses is told.
  ReadMarkup ReadAlone(pugi::xml_node element) const;

 private:
  ReadMarkup ReadAs(std::string_view format, std::u16string_view text) const;
  std::optional<std::u16string> InOneLanguage(std::u16string_view html) const;

  ReadingTools& tools_;
};

}  // namespace quorvantis
