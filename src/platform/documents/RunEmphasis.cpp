// SPDX-License-Identifier: MIT
#include "platform/documents/RunEmphasis.h"

#include "platform/WordContent.h"
#include "platform/documents/XmlPart.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <functional>
#include <string_view>
#include <utility>

namespace quorvantis {
namespace {

constexpr std::uint32_t kBlack = 0;
constexpr std::uint32_t kWhite = 0xFFFFFF;

std::optional<std::uint32_t> ReadColour(std::string_view value) {
  if (value == "auto") return kBlack;
  std::uint32_t colour = 0;
  const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), colour, 16);
  const bool isColour = value.size() == 6 && error == std::errc() && end == value.data() + value.size();
  return isColour ? std::optional(colour) : std::nullopt;
}

/// Text that was copied from pages is often in a dark grey that nobody can tell from black.
std::uint32_t SeenColour(std::uint32_t colour) {
  constexpr std::uint32_t kDark = 0x60;
  constexpr std::uint32_t kColourless = 0x20;
  const auto [least, most] = std::minmax({colour >> 16U & 0xFFU, colour >> 8U & 0xFFU, colour & 0xFFU});
  return most < kDark && most - least < kColourless ? kBlack : colour;
}

/// Shading is white or absent where it takes away that of a style.
bool IsShading(pugi::xml_node shading) {
  const std::string_view pattern = ValueOf(shading);
  const auto fill = ReadColour(ValueOf(shading, "fill"));
  const bool isFilled = ValueOf(shading, "fill") != "auto" && fill && *fill != kWhite;
  return isFilled || (!pattern.empty() && pattern != "clear" && pattern != "nil");
}

bool IsUnderline(pugi::xml_node underline) {
  const std::string_view kind = ValueOf(underline);
  return !kind.empty() && kind != "none";
}

void TakeRunProperty(pugi::xml_node property, RunLook& look) {
  const std::string_view name = LocalName(property);
  if (name == "b") look.isBold = IsOn(property);
  if (name == "i") look.isItalic = IsOn(property);
  if (name == "bCs") look.isComplexBold = IsOn(property);
  if (name == "iCs") look.isComplexItalic = IsOn(property);
  if (name == "rtl" || name == "cs") look.isComplex = look.isComplex.value_or(false) || IsOn(property);
  if (name == "u") look.isUnderlined = IsUnderline(property);
  if (name == "highlight") look.isHighlighted = ValueOf(property) != "none";
  if (name == "shd") look.isShaded = IsShading(property);
  if (name == "color") look.colour = ReadColour(ValueOf(property));
}

RunLook LookOf(pugi::xml_node runProperties) {
  RunLook look;
  for (const pugi::xml_node property : runProperties.children()) TakeRunProperty(property, look);
  return look;
}

template <class T>
void Complete(std::optional<T>& value, const std::optional<T>& base) {
  if (!value) value = base;
}

/// What the look leaves open comes from the one that it is based on.
void CompleteLook(RunLook& look, const RunLook& base) {
  Complete(look.isBold, base.isBold);
  Complete(look.isItalic, base.isItalic);
  Complete(look.isComplexBold, base.isComplexBold);
  Complete(look.isComplexItalic, base.isComplexItalic);
  Complete(look.isComplex, base.isComplex);
  Complete(look.isUnderlined, base.isUnderlined);
  Complete(look.isHighlighted, base.isHighlighted);
  Complete(look.isShaded, base.isShaded);
  Complete(look.isParagraphShaded, base.isParagraphShaded);
  Complete(look.colour, base.colour);
}

std::uint8_t If(bool isSo, std::uint8_t kind) {
  return isSo ? kind : std::uint8_t{0};
}

/// Counts the text of each colour.
class ColourCount : public pugi::xml_tree_walker {
 public:
  using ColourOfRun = std::function<std::uint32_t(pugi::xml_node run, pugi::xml_node paragraph)>;
  explicit ColourCount(ColourOfRun colourOf) : colourOf_(std::move(colourOf)) {}

  bool for_each(pugi::xml_node& node) override {
    if (LocalName(node) != "t") return true;
    pugi::xml_node paragraph = node.parent();
    for (int i = 0; i < kMostAround && paragraph && LocalName(paragraph) != "p"; ++i)
      paragraph = paragraph.parent();
    counts_[colourOf_(node.parent(), paragraph)] += std::string_view(node.text().get()).size();
    return true;
  }

  std::uint32_t MostFrequent() const {
    const auto most = std::max_element(counts_.begin(), counts_.end(),
                                       [](const auto& a, const auto& b) { return a.second < b.second; });
    return most == counts_.end() ? kBlack : most->first;
  }

 private:
  static constexpr int kMostAround = 20;  // links and the like around a run

  ColourOfRun colourOf_;
  std::map<std::uint32_t, std::size_t> counts_;
};

}  // namespace

RunEmphasis::RunEmphasis(pugi::xml_node body, const DocxStyles& styles)
    : styles_(styles), defaults_(LookOf(styles.RunDefaults())), usualColour_(UsualColour(body)) {}

/// Each style is evaluated once, however many runs have it.
const RunLook& RunEmphasis::LookOfStyle(const std::string& style) {
  const auto known = known_.find(style);
  if (known != known_.end()) return known->second;
  RunLook look;
  styles_.FollowBases(style, [&look](pugi::xml_node definition) {
    RunLook base = LookOf(ChildOf(definition, "rPr"));
    const pugi::xml_node shading = ChildOf(ChildOf(definition, "pPr"), "shd");
    if (shading) base.isParagraphShaded = IsShading(shading);
    CompleteLook(look, base);
    return false;
  });
  return known_.emplace(style, look).first->second;
}

/// How a run looks, all considered. Of the properties that toggle, a style takes away what the other one
/// gives.
RunLook RunEmphasis::WholeLook(pugi::xml_node properties, const std::string& paragraphStyle) {
  const RunLook own = LookOf(properties);
  const RunLook& character = LookOfStyle(std::string(ValueOf(ChildOf(properties, "rStyle"))));
  const RunLook& paragraph = LookOfStyle(paragraphStyle);
  RunLook look = own;
  CompleteLook(look, character);
  CompleteLook(look, paragraph);
  CompleteLook(look, defaults_);
  for (const auto toggle :
       {&RunLook::isBold, &RunLook::isItalic, &RunLook::isComplexBold, &RunLook::isComplexItalic}) {
    const bool differ = (character.*toggle).value_or(false) != (paragraph.*toggle).value_or(false);
    if (!(own.*toggle)) look.*toggle = differ || (defaults_.*toggle).value_or(false);
  }
  if (!look.colour) look.colour = kBlack;
  return look;
}

std::uint32_t RunEmphasis::UsualColour(pugi::xml_node body) {
  ColourCount count([this](pugi::xml_node run, pugi::xml_node paragraph) {
    const std::string style = styles_.OfParagraph(ChildOf(paragraph, "pPr"));
    return SeenColour(*WholeLook(ChildOf(run, "rPr"), style).colour);
  });
  body.traverse(count);
  return count.MostFrequent();
}

std::uint8_t RunEmphasis::KindsOf(const RunLook& look) const {
  const auto isOn = [&look](std::optional<bool> RunLook::*property) {
    return (look.*property).value_or(false);
  };
  const bool isComplex = isOn(&RunLook::isComplex);
  const bool isColoured = look.colour && SeenColour(*look.colour) != usualColour_;
  return static_cast<std::uint8_t>(
      If(isOn(isComplex ? &RunLook::isComplexBold : &RunLook::isBold), emphasis::kBold) |
      If(isOn(isComplex ? &RunLook::isComplexItalic : &RunLook::isItalic), emphasis::kItalic) |
      If(isOn(&RunLook::isUnderlined), emphasis::kUnderlined) | If(isColoured, emphasis::kColoured) |
      If(isOn(&RunLook::isHighlighted) || isOn(&RunLook::isShaded), emphasis::kHighlighted));
}

std::uint8_t RunEmphasis::OfRun(pugi::xml_node properties, const std::string& paragraphStyle) {
  return KindsOf(WholeLook(properties, paragraphStyle));
}

std::uint8_t RunEmphasis::OfLabel(pugi::xml_node properties) const {
  return KindsOf(LookOf(properties));
}

std::uint8_t RunEmphasis::OfParagraph(pugi::xml_node properties, const std::string& style) {
  const pugi::xml_node own = ChildOf(properties, "shd");
  const bool isShaded = own ? IsShading(own) : LookOfStyle(style).isParagraphShaded.value_or(false);
  return If(isShaded, emphasis::kHighlighted);
}

std::uint8_t RunEmphasis::OfCell(pugi::xml_node properties) {
  return If(IsShading(ChildOf(properties, "shd")), emphasis::kHighlighted);
}

}  // namespace quorvantis
