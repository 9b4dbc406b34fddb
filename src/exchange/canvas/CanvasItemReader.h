// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/qti/QtiPackage.h"
#include "exchange/xml/HtmlParts.h"

#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// Reads an item of QTI 1.2.
class CanvasItemReader {
 public:
  CanvasItemReader(QtiPackage& package, std::string name, ReadingTools& tools);

  /// False if there is no question of a known kind, which is told.
  bool Read(pugi::xml_node item, ExchangedQuestion& question);

 private:
  /// A value that a pupil's response is compared with.
  struct Comparison {
    std::string response;
    std::string value;
    bool earns = false;  ///< it is right
  };

  std::optional<ExchangedFile> Find(std::u16string_view address);
  std::u16string Material(pugi::xml_node owner, ExchangedQuestion& question);
  std::u16string QuestionText(ExchangedQuestion& question);
  std::string TypeOfItem() const;
  std::string Field(std::string_view label) const;
  void ReadComparisons();
  bool IsRight(std::string_view response, std::string_view value) const;
  bool TakeByType(std::string_view type, ExchangedQuestion& question);
  void TakeOptions(ExchangedQuestion& question);
  void TakeAnswers(ExchangedQuestion& question);
  void TakeNumbers(ExchangedQuestion& question);
  void TakeNamedBlanks(bool isDropDown, ExchangedQuestion& question);
  void TakePairs(ExchangedQuestion& question);
  void TakeFeedback(ExchangedQuestion& question);
  bool Refuse(const std::string& type, ExchangedQuestion& question);

  QtiPackage& package_;
  std::string name_;
  ReadingTools& tools_;
  HtmlReading html_;
  pugi::xml_node item_;
  std::vector<pugi::xml_node> responses_;
  std::vector<Comparison> comparisons_;
};

}  // namespace quorvantis
