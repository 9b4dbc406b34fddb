// SPDX-License-Identifier: MIT
#pragma once

#include "platform/WordContent.h"
#include "platform/WordDocuments.h"
#include "platform/documents/FieldNesting.h"
#include "platform/documents/HiddenText.h"
#include "platform/documents/ListLabels.h"
#include "platform/documents/PicturePlace.h"
#include "platform/documents/RunEmphasis.h"

#include <cstdint>
#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// Walks the body of a document and collects its content.
class DocxText {
 public:
  /// All must outlive this object. Automatic numbers are part of the text only with `keepsLabels`.
  DocxText(pugi::xml_node body, const DocxStyles& styles, ListLabels& labels, bool keepsLabels);

  /// Once only.
  void Read();

  /// `TooDeep` and `TooLarge` if the document is nested too deeply or has too many pictures. What has been
  /// read is then incomplete.
  WordResult Result() const { return result_; }

  WordContent& Document() { return document_; }

  /// The sources are the ids of relations.
  std::vector<PicturePlace>& Pictures() { return pictures_; }

 private:
  /// A place between two characters and two objects of a text.
  struct Place {
    std::size_t characters = 0;
    std::size_t objects = 0;
    bool operator==(const Place&) const = default;
  };
  using Handler = void (DocxText::*)(pugi::xml_node);
  static Handler HandlerOf(std::string_view localName);

  void Walk(pugi::xml_node node);
  void WalkChildren(pugi::xml_node node);
  void Skip(pugi::xml_node node);

  void Paragraph(pugi::xml_node node);
  bool EndsLine(pugi::xml_node mark, bool isEmpty);
  void InsertLabel(pugi::xml_node properties, Place start);
  void EndLine();
  void TextBox(pugi::xml_node node);
  void TextBoxes(const std::vector<pugi::xml_node>& boxes);
  void Alternatives(pugi::xml_node node);

  void Table(pugi::xml_node node);
  void Row(pugi::xml_node node);
  void Cell(pugi::xml_node node);
  void CellText(pugi::xml_node node, bool isEmpty);

  void Run(pugi::xml_node node);
  void Text(pugi::xml_node node);
  void Tab(pugi::xml_node node);
  void Break(pugi::xml_node node);
  void LineBreak(pugi::xml_node node);
  void FixedHyphen(pugi::xml_node node);
  void SoftHyphen(pugi::xml_node node);
  void Symbol(pugi::xml_node node);
  void FieldCharacter(pugi::xml_node node);
  void SimpleField(pugi::xml_node node);
  void Instruction(pugi::xml_node node);

  void Equation(pugi::xml_node node);
  void EmbeddedObject(pugi::xml_node node);
  void Drawing(pugi::xml_node node);
  void Extent(pugi::xml_node node);
  void Picture(pugi::xml_node node);
  void VmlPicture(pugi::xml_node node);
  void DrawnPicture(pugi::xml_node node);

  bool IsShown() const { return !hidden_ && !fields_.IsUnseen(); }
  bool IsLineStart(std::size_t position) const;
  Place End() const { return {text_->characters.size(), text_->objects.size()}; }
  void Append(std::u16string_view characters);
  void AppendAlways(std::u16string_view characters);
  void AppendPicture(std::string_view relation);

  pugi::xml_node body_;
  const DocxStyles& styles_;
  HiddenText hiding_;
  RunEmphasis look_;
  ListLabels& labels_;
  const bool keepsLabels_;
  FieldNesting fields_;
  WordContent document_;
  std::vector<PicturePlace> pictures_;
  PicturePlace extent_;                    ///< the size of the current drawing
  WordText* text_;                         ///< what is being filled
  std::vector<pugi::xml_node> textBoxes_;  ///< of the current paragraph
  std::string paragraphStyle_;             ///< of the same
  std::uint8_t paragraphEmphasis_ = 0;     ///< likewise; `emphasis` values
  std::uint8_t cellEmphasis_ = 0;          ///< of the current cell
  std::uint8_t emphasis_ = 0;              ///< of the characters at the current place
  std::size_t found_ = 0;                  ///< grows with everything found
  int depth_ = 0;
  int enclosing_ = 0;        ///< tables and text boxes around the current place
  bool ofTopTable_ = false;  ///< whether rows and cells here belong to a table of the document
  bool hidden_ = false;
  WordResult result_ = WordResult::Done;
};

}  // namespace quorvantis
