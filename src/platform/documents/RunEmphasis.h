// SPDX-License-Identifier: MIT
#pragma once

#include "platform/documents/DocxStyles.h"

#include <cstdint>
#include <map>
#include <optional>
#include <pugixml.hpp>
#include <string>

namespace quorvantis {

/// How text looks by some properties; nothing where they leave it to others.
struct RunLook {
  std::optional<bool> isBold;
  std::optional<bool> isItalic;
  std::optional<bool> isComplexBold;  ///< of Arabic and other complex scripts; likewise:
  std::optional<bool> isComplexItalic;
  std::optional<bool> isComplex;  ///< whether these two count
  std::optional<bool> isUnderlined;
  std::optional<bool> isHighlighted;
  std::optional<bool> isShaded;
  std::optional<bool> isParagraphShaded;
  std::optional<std::uint32_t> colour;  ///< red, green and blue; 0 for automatic
};

/// Tells how the runs of a document stand out (`emphasis` values, platform/WordContent.h): by their own
/// properties, by their styles or by the defaults of the document.
class RunEmphasis {
 public:
  /// `styles` must outlive this. The usual colour is that of most of the text in `body`.
  RunEmphasis(pugi::xml_node body, const DocxStyles& styles);

  /// Of a run in a paragraph of that style. `properties` are the run's own; they may be empty.
  std::uint8_t OfRun(pugi::xml_node properties, const std::string& paragraphStyle);

  /// Of all text in a paragraph: whether it is shaded.
  std::uint8_t OfParagraph(pugi::xml_node properties, const std::string& style);

  /// Of all text in a cell: whether that is shaded.
  static std::uint8_t OfCell(pugi::xml_node properties);

  /// Of the label of a list's level, by what the list says alone.
  std::uint8_t OfLabel(pugi::xml_node properties) const;

 private:
  const RunLook& LookOfStyle(const std::string& style);
  RunLook WholeLook(pugi::xml_node properties, const std::string& paragraphStyle);
  std::uint32_t UsualColour(pugi::xml_node body);
  std::uint8_t KindsOf(const RunLook& look) const;

  const DocxStyles& styles_;
  RunLook defaults_;
  std::map<std::string, RunLook, std::less<>> known_;  ///< by style
  std::uint32_t usualColour_;
};

}  // namespace quorvantis
