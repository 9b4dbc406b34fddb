// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/form/Format.h"

#include <map>
#include <optional>
#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// The files inside one element, kept when they are referred to.
class MoodleFiles {
 public:
  MoodleFiles(pugi::xml_node element, ReadingTools& tools);

  /// The file of an address in the text of the element; nothing if it is none of them.
  std::optional<ExchangedFile> Find(std::u16string_view address);

  /// Gives those that nothing has referred to to the question, too.
  void TakeRest(ExchangedQuestion& question);

 private:
  std::optional<ExchangedFile> Keep(const std::u16string& name);

  ReadingTools& tools_;
  std::vector<std::u16string> names_;
  std::map<std::u16string, pugi::xml_node> nodes_;
  std::map<std::u16string, std::optional<ExchangedFile>> kept_;
};

/// Gives the question the picture that files of old versions have beside its text. One without its bytes is
/// told.
void TakeOldPicture(pugi::xml_node questionNode, ReadingTools& tools, ExchangedQuestion& question);

}  // namespace quorvantis
