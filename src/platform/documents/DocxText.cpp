// SPDX-License-Identifier: MIT
#include "platform/documents/DocxText.h"

#include "platform/documents/EmphasisRuns.h"
#include "platform/documents/RevisionMarks.h"
#include "platform/documents/XmlPart.h"
#include "text/Utf.h"

#include <algorithm>
#include <charconv>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace quorvantis {
namespace {

constexpr int kDeepest = 200;  // elements within elements; each takes a little of the stack
constexpr std::size_t kMostPictures = 10'000;

constexpr std::u16string_view kParagraphEnd = u"\r";
constexpr std::u16string_view kCellEnd = u"\a";
constexpr std::u16string_view kRowEnd = u"\r\a";

/// Line breaks of the file are not line breaks of the text.
std::u16string TextOf(pugi::xml_node node) {
  std::string bytes;
  for (const pugi::xml_node part : node.children()) bytes += part.value();
  std::u16string text = Utf8ToUtf16(bytes);
  for (char16_t& unit : text) {
    if (unit < u' ' && unit != u'\t') unit = u' ';
  }
  return text;
}

/// Properties, whose children's names mean something else in the text, and other content that is not text.
bool IsSkipped(std::string_view localName) {
  static const std::unordered_set<std::string_view> skipped{
      "pPr",    "rPr",   "tblPr",    "tblPrEx",     "tblGrid",    "trPr",
      "tcPr",   "sdtPr", "sdtEndPr", "customXmlPr", "smartTagPr", "sectPr",
      "rubyPr", "rt",    "del",      "moveFrom",    "delText",    "delInstrText"};
  return skipped.contains(localName);
}

bool Continues(pugi::xml_node merge) {
  return merge && ValueOf(merge) != "restart";
}

bool IsEquationProgram(std::string_view program) {
  return program.starts_with("Equation") || program.starts_with("MathType");
}

/// Within a few levels, which is where the word processor puts it.
pugi::xml_node OleObjectIn(pugi::xml_node node, int levels = 4) {
  if (const pugi::xml_node found = ChildOf(node, "OLEObject")) return found;
  for (const pugi::xml_node child : levels > 0 ? node.children() : pugi::xml_node().children()) {
    if (const pugi::xml_node found = OleObjectIn(child, levels - 1)) return found;
  }
  return {};
}

}  // namespace

DocxText::DocxText(pugi::xml_node body, const DocxStyles& styles, ListLabels& labels, bool keepsLabels)
    : body_(body),
      styles_(styles),
      hiding_(styles),
      look_(body, styles),
      labels_(labels),
      keepsLabels_(keepsLabels),
      fields_(body),
      text_(&document_.runningText) {}

void DocxText::Read() {
  WalkChildren(body_);
  EndLine();
  document_.pictures = pictures_.size();
}

DocxText::Handler DocxText::HandlerOf(std::string_view localName) {
  static const std::unordered_map<std::string_view, Handler> handlers{
      {"p", &DocxText::Paragraph},
      {"tbl", &DocxText::Table},
      {"tr", &DocxText::Row},
      {"tc", &DocxText::Cell},
      {"r", &DocxText::Run},
      {"t", &DocxText::Text},
      {"tab", &DocxText::Tab},
      {"ptab", &DocxText::Tab},
      {"br", &DocxText::Break},
      {"cr", &DocxText::LineBreak},
      {"noBreakHyphen", &DocxText::FixedHyphen},
      {"softHyphen", &DocxText::SoftHyphen},
      {"sym", &DocxText::Symbol},
      {"fldChar", &DocxText::FieldCharacter},
      {"instrText", &DocxText::Instruction},
      {"fldSimple", &DocxText::SimpleField},
      {"oMath", &DocxText::Equation},
      {"object", &DocxText::EmbeddedObject},
      {"drawing", &DocxText::Drawing},
      {"extent", &DocxText::Extent},
      {"blip", &DocxText::Picture},
      {"imagedata", &DocxText::VmlPicture},
      {"chart", &DocxText::DrawnPicture},
      {"relIds", &DocxText::DrawnPicture},
      {"txbxContent", &DocxText::TextBox},
      {"txBody", &DocxText::TextBox},
      {"AlternateContent", &DocxText::Alternatives},
  };
  const auto found = handlers.find(localName);
  if (found != handlers.end()) return found->second;
  return IsSkipped(localName) ? &DocxText::Skip : &DocxText::WalkChildren;
}

void DocxText::Walk(pugi::xml_node node) {
  if (result_ != WordResult::Done) return;
  if (++depth_ > kDeepest)
    result_ = WordResult::TooDeep;
  else
    (this->*HandlerOf(LocalName(node)))(node);
  --depth_;
}

void DocxText::WalkChildren(pugi::xml_node node) {
  for (const pugi::xml_node child : node.children()) Walk(child);
}

void DocxText::Skip(pugi::xml_node /*node*/) {}

void DocxText::Paragraph(pugi::xml_node node) {
  const pugi::xml_node properties = ChildOf(node, "pPr");
  auto outerBoxes = std::exchange(textBoxes_, {});
  auto outerStyle = std::exchange(paragraphStyle_, styles_.OfParagraph(properties));
  const auto outerEmphasis =
      std::exchange(paragraphEmphasis_, look_.OfParagraph(properties, paragraphStyle_));
  const Place start = End();
  const bool wasShown = IsShown();
  WalkChildren(node);
  const bool isEmpty = End() == start;
  const bool endsLine = EndsLine(ChildOf(properties, "rPr"), isEmpty);
  // Word processors do not number a section break that stands alone.
  const bool isNumbered =
      isEmpty ? endsLine && !ChildOf(properties, "sectPr") : IsLineStart(start.characters);
  if (wasShown && isNumbered) InsertLabel(properties, start);
  if (endsLine) Append(kParagraphEnd);
  paragraphStyle_ = std::move(outerStyle);
  paragraphEmphasis_ = outerEmphasis;
  TextBoxes(std::exchange(textBoxes_, std::move(outerBoxes)));
}

/// A paragraph whose mark is deleted, or separates a heading from its text in the same line, continues in the
/// next one. A paragraph that shows nothing does not exist.
bool DocxText::EndsLine(pugi::xml_node mark, bool isEmpty) {
  if (HasDeletion(mark)) return false;
  return !hiding_.IsHidden(mark, paragraphStyle_) || (!isEmpty && !IsOn(ChildOf(mark, "specVanish")));
}

/// Only now: a paragraph of which nothing is left must not be counted.
void DocxText::InsertLabel(pugi::xml_node properties, Place start) {
  if (!keepsLabels_ && document_.hasNumbersLeftOut) return;
  const auto& [label, look] = labels_.Next(properties);
  if (!label.empty()) document_.hasAutomaticNumbers = true;
  if (!keepsLabels_) {
    document_.hasNumbersLeftOut = !label.empty();
    return;
  }
  text_->characters.insert(start.characters, label);
  InsertEmphasis(text_->emphasis, start.characters, label.size(), look_.OfLabel(look));
  for (std::size_t i = start.objects; i < text_->objects.size(); ++i)
    text_->objects[i].position += label.size();
}

bool DocxText::IsLineStart(std::size_t position) const {
  const auto before = std::u16string_view(text_->characters).substr(0, position);
  return before.empty() || before.ends_with(kParagraphEnd) || before.ends_with(kCellEnd);
}

/// The end of a paragraph that does not continue in another one.
void DocxText::EndLine() {
  if (!IsLineStart(text_->characters.size())) AppendAlways(kParagraphEnd);
}

void DocxText::TextBox(pugi::xml_node node) {
  if (IsShown()) textBoxes_.push_back(node);
  ++found_;
}

void DocxText::TextBoxes(const std::vector<pugi::xml_node>& boxes) {
  ++enclosing_;
  for (const pugi::xml_node box : boxes) WalkChildren(box);
  --enclosing_;
}

/// The first of several forms that yields anything: newer ones may draw what an older one has as a picture.
void DocxText::Alternatives(pugi::xml_node node) {
  const std::size_t before = found_;
  for (const pugi::xml_node form : node.children()) {
    if (found_ == before) WalkChildren(form);
  }
}

void DocxText::Table(pugi::xml_node node) {
  EndLine();
  const bool outer = std::exchange(ofTopTable_, enclosing_ == 0);
  if (ofTopTable_) document_.tables.push_back({{}, document_.runningText.characters.size()});
  ++enclosing_;
  WalkChildren(node);
  --enclosing_;
  ofTopTable_ = outer;
}

void DocxText::Row(pugi::xml_node node) {
  if (HasDeletion(ChildOf(node, "trPr"))) return;
  if (ofTopTable_) document_.tables.back().rows.emplace_back();
  WalkChildren(node);
  if (!ofTopTable_) AppendAlways(kRowEnd);
}

void DocxText::Cell(pugi::xml_node node) {
  const pugi::xml_node properties = ChildOf(node, "tcPr");
  if (Continues(ChildOf(properties, "hMerge")) || HasDeletion(properties)) return;
  const bool isEmpty = Continues(ChildOf(properties, "vMerge"));
  if (!ofTopTable_ || document_.tables.back().rows.empty()) return CellText(node, isEmpty);
  WordText cell;
  WordText* const outer = std::exchange(text_, &cell);
  ofTopTable_ = false;
  cellEmphasis_ = RunEmphasis::OfCell(properties);
  CellText(node, isEmpty);
  cellEmphasis_ = 0;
  ofTopTable_ = true;
  text_ = outer;
  document_.tables.back().rows.back().push_back(std::move(cell));
}

void DocxText::CellText(pugi::xml_node node, bool isEmpty) {
  if (!isEmpty) WalkChildren(node);
  if (!text_->characters.ends_with(kParagraphEnd)) AppendAlways(kParagraphEnd);
  AppendAlways(kCellEnd);
}

void DocxText::Run(pugi::xml_node node) {
  const bool outer = hidden_;
  const pugi::xml_node properties = ChildOf(node, "rPr");
  hidden_ = hidden_ || hiding_.IsHidden(properties, paragraphStyle_);
  const unsigned whole = paragraphEmphasis_ | cellEmphasis_;
  const auto outerEmphasis =
      std::exchange(emphasis_, static_cast<std::uint8_t>(look_.OfRun(properties, paragraphStyle_) | whole));
  WalkChildren(node);
  emphasis_ = outerEmphasis;
  hidden_ = outer;
}

void DocxText::Text(pugi::xml_node node) {
  Append(TextOf(node));
}

void DocxText::Tab(pugi::xml_node /*node*/) {
  Append(u"\t");
}

void DocxText::Break(pugi::xml_node node) {
  const std::string_view type = ValueOf(node, "type");
  Append(type == "page" ? u"\f" : type == "column" ? u"\x0E" : u"\v");
}

void DocxText::LineBreak(pugi::xml_node /*node*/) {
  Append(u"\v");
}

/// Word processors use control characters for the two hyphens, which no page can show.
void DocxText::FixedHyphen(pugi::xml_node /*node*/) {
  Append(u"\u2011");
}

void DocxText::SoftHyphen(pugi::xml_node /*node*/) {
  Append(u"\u00AD");
}

void DocxText::Symbol(pugi::xml_node node) {
  const std::string_view digits = ValueOf(node, "char");
  std::uint16_t unit = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), unit, 16);
  const auto symbol = static_cast<char16_t>(unit);
  if (symbol >= u' ' && !IsHighSurrogate(symbol) && !IsLowSurrogate(symbol)) Append({&symbol, 1});
}

void DocxText::FieldCharacter(pugi::xml_node node) {
  if (fields_.Take(node)) Equation(node);
}

void DocxText::SimpleField(pugi::xml_node node) {
  if (!FieldNesting::HidesResult(ValueOf(node, "instr"))) WalkChildren(node);
}

void DocxText::Instruction(pugi::xml_node node) {
  fields_.AddInstruction(node.text().get());
}

void DocxText::Equation(pugi::xml_node /*node*/) {
  ++found_;
  if (IsShown()) text_->objects.push_back({text_->characters.size(), WordObjectKind::Equation, 0});
}

/// The picture of an equation made by another program stands for the equation.
void DocxText::EmbeddedObject(pugi::xml_node node) {
  const pugi::xml_node object = OleObjectIn(node);
  IsEquationProgram(ValueOf(object, "ProgID")) ? Equation(node) : WalkChildren(node);
}

void DocxText::Drawing(pugi::xml_node node) {
  const PicturePlace outer = std::exchange(extent_, {});
  WalkChildren(node);
  extent_ = outer;
}

void DocxText::Extent(pugi::xml_node node) {
  constexpr int kUnits = 360;  // to a hundredth of a millimetre
  extent_.width = static_cast<std::uint64_t>(std::max(NumberOf(node, 0, "cx"), 0) / kUnits);
  extent_.height = static_cast<std::uint64_t>(std::max(NumberOf(node, 0, "cy"), 0) / kUnits);
}

void DocxText::Picture(pugi::xml_node node) {
  AppendPicture(ValueOf(node, "embed"));
}

void DocxText::VmlPicture(pugi::xml_node node) {
  AppendPicture(ValueOf(node, "id"));
}

/// A chart or diagram: it has its place among the pictures, but no file.
void DocxText::DrawnPicture(pugi::xml_node /*node*/) {
  AppendPicture({});
}

void DocxText::Append(std::u16string_view characters) {
  found_ += characters.size();
  if (!IsShown()) return;
  const std::size_t begin = text_->characters.size();
  AppendAlways(characters);
  AppendEmphasis(text_->emphasis, begin, text_->characters.size(), emphasis_);
}

void DocxText::AppendAlways(std::u16string_view characters) {
  text_->characters += characters;
}

void DocxText::AppendPicture(std::string_view relation) {
  ++found_;
  if (!IsShown()) return;
  if (pictures_.size() == kMostPictures) {
    result_ = WordResult::TooLarge;
    return;
  }
  text_->objects.push_back({text_->characters.size(), WordObjectKind::Picture, pictures_.size()});
  pictures_.push_back({std::string(relation), extent_.width, extent_.height});
}

}  // namespace quorvantis
