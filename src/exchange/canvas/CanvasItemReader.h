// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/canvas/CanvasBlanks.h"
#include "exchange/canvas/CanvasKeys.h"
#include "exchange/qti/QtiPackage.h"
#include "exchange/xml/HtmlParts.h"

#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// What the metadata of an item say under a label; empty if nothing.
std::string FieldOfItem(pugi::xml_node item, std::string_view label);

/// Reads an item of QTI 1.2.
class CanvasItemReader {
 public:
  CanvasItemReader(QtiPackage& package, std::string name, ReadingTools& tools);

  /// False if there is no question of a known kind, which is told.
  bool Read(pugi::xml_node item, ExchangedQuestion& question);

  /// The texts of an element that is no item, and its pictures.
  std::u16string ReadMaterial(pugi::xml_node owner, ExchangedQuestion& question);

 private:
  std::optional<ExchangedFile> Find(std::u16string_view address);
  std::u16string Text(pugi::xml_node part, ExchangedQuestion& question);
  std::string TypeOfItem(const CanvasKeys& keys) const;
  std::optional<double> Score(const CanvasKeys& keys) const;
  bool TakeByType(std::string_view type, const CanvasKeys& keys, ExchangedQuestion& question);
  void TakeOptions(const CanvasKeys& keys, ExchangedQuestion& question);
  void TakeLead(pugi::xml_node response, ExchangedQuestion& question);
  void TakeAnswers(const CanvasKeys& keys, ExchangedQuestion& question);
  void TakeNumbers(const CanvasKeys& keys, ExchangedQuestion& question);
  void TakeNamedBlanks(bool isDropDown, const CanvasKeys& keys, ExchangedQuestion& question);
  CanvasBlank NamedBlank(pugi::xml_node response, bool isDropDown, const CanvasKeys& keys,
                         ExchangedQuestion& question);
  void TakePairs(const CanvasKeys& keys, ExchangedQuestion& question);
  void TakeRubric(ExchangedQuestion& question);
  void TakeFeedback(ExchangedQuestion& question);
  bool Refuse(const std::string& type, ExchangedQuestion& question);

  QtiPackage& package_;
  std::string name_;
  ReadingTools& tools_;
  HtmlReading html_;
  pugi::xml_node item_;
  std::vector<pugi::xml_node> responses_;
};

}  // namespace quorvantis
