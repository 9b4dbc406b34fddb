// SPDX-License-Identifier: MIT
#pragma once

#include "platform/documents/DocxStyles.h"

#include <map>
#include <pugixml.hpp>
#include <string>
#include <string_view>

namespace quorvantis {

/// Recognises hidden text, whether hidden directly or by its styles.
class HiddenText {
 public:
  /// `styles` must outlive this.
  explicit HiddenText(const DocxStyles& styles) : styles_(styles) {}

  /// Whether a run or the mark of a paragraph is hidden. `properties` are its own; they may be empty.
  bool IsHidden(pugi::xml_node properties, const std::string& paragraphStyle);

 private:
  bool IsHiddenBy(const std::string& style);

  const DocxStyles& styles_;
  std::map<std::string, bool, std::less<>> known_;  ///< by style
};

}  // namespace quorvantis
