// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/qti/QtiKeys.h"
#include "exchange/qti/QtiPackage.h"
#include "exchange/xml/HtmlParts.h"

#include <string>

namespace quorvantis {

/// Reads an item of QTI 2.
class QtiItemReader {
 public:
  /// `name` is that of the item's part in the package. The item is changed while it is read.
  QtiItemReader(QtiPackage& package, std::string name, ReadingTools& tools);

  /// False if there is no question of a known kind, which is told.
  bool Read(pugi::xml_node item, ExchangedQuestion& question);

  /// Files whose addresses are relative to another part than the item's.
  void ReadRelativeTo(std::string part) { base_ = std::move(part); }

  /// The content of an element that belongs to the question, but stands elsewhere.
  std::u16string ReadPassage(pugi::xml_node element, ExchangedQuestion& question);

  bool Shuffles() const { return shuffles_; }

 private:
  std::u16string Html(pugi::xml_node element, ExchangedQuestion& question);
  std::u16string PartOf(pugi::xml_node element, ExchangedQuestion& question);
  void PrepareBody();
  bool IsCalculated() const;
  void TakeRubrics(ExchangedQuestion& question);
  void TakeInline(ExchangedQuestion& question);
  bool TakeBlock(ExchangedQuestion& question);
  void TakeField(pugi::xml_node field, ExchangedQuestion& question);
  void TakeChoices(pugi::xml_node interaction, ExchangedQuestion& question);
  void TakeModelAnswer(pugi::xml_node interaction, ExchangedQuestion& question);
  void TakePairs(pugi::xml_node interaction, ExchangedQuestion& question);
  bool Refuse(std::string_view type);

  QtiPackage& package_;
  std::string name_;
  std::string base_;  ///< the part from which addresses count
  ReadingTools& tools_;
  HtmlReading html_;
  pugi::xml_node item_;
  QtiKeys keys_;
  pugi::xml_node body_;
  std::vector<std::pair<std::u16string, std::u16string>> pairs_;
  bool shuffles_ = false;
};

}  // namespace quorvantis
