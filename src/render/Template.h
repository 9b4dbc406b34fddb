// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace quorvantis {

/// A value for a page; texts are inserted as they are, without escaping.
using TemplateValue = std::variant<int, float, char16_t, std::u16string_view>;

/// A mark in a template and its meaning: a kind of value (an index of TemplateValue), or the character
/// `escape`.
struct TemplateMark {
  std::u16string_view text;
  std::optional<std::size_t> value;
  char16_t escape;
};

inline constexpr TemplateMark kTemplateMarks[] = {
    {u"%d", 0, u'\0'},
    {u"%03d", 0, u'\0'},
    {u"%1.2f", 1, u'\0'},
    {u"%c", 2, u'\0'},
    {u"%s", 3, u'\0'},
    {u"%%", std::nullopt, u'%'},
    {uR"(\r)", std::nullopt, u'\r'},
    {uR"(\n)", std::nullopt, u'\n'},
    {uR"(\t)", std::nullopt, u'\t'},
    {uR"(\\)", std::nullopt, u'\\'},
};

/// The mark at the front of `rest`, or one without text. By value: with sanitizers, gcc does not treat
/// comparisons with null pointers as constant.
constexpr TemplateMark TemplateMarkAt(std::u16string_view rest) {
  for (const TemplateMark& mark : kTemplateMarks) {
    if (rest.starts_with(mark.text)) return mark;
  }
  return {};
}

/// The first place in `text` where a mark can be.
constexpr std::size_t FindTemplateMark(std::u16string_view text) {
  // Faster than find_first_of, which starts a search for every character of a page.
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == u'%' || text[i] == u'\\') return i;
  }
  return std::u16string_view::npos;
}

std::u16string FillTemplate(std::u16string_view text, std::span<const TemplateValue> values);

/// A piece of a page with places for values. Templates are written as raw literals, so that each can be
/// compared with the page character by character: "\r", "\n", "\t" and "\\" in them are what they are in
/// other literals, and "%d", "%03d", "%1.2f", "%c" and "%s" are the places. The compiler checks that they fit
/// the types of the values.
template <class... Values>
class Template {
 public:
  consteval explicit Template(std::u16string_view text) : text_(text) {
    constexpr std::array<std::size_t, sizeof...(Values)> kKinds{TemplateValue(Values{}).index()...};
    std::size_t filled = 0;
    for (std::size_t at; (at = FindTemplateMark(text)) != std::u16string_view::npos;) {
      const TemplateMark mark = TemplateMarkAt(text.substr(at));
      if (mark.text.empty()) throw "a template has \"%\" or \"\\\" without meaning";
      if (mark.value) {
        if (filled == kKinds.size() || kKinds[filled] != *mark.value) throw "a place does not fit its value";
        ++filled;
      }
      text.remove_prefix(at + mark.text.size());
    }
    if (filled != kKinds.size()) throw "a value has no place";
  }

  std::u16string operator()(Values... values) const {
    return FillTemplate(text_, std::array<TemplateValue, sizeof...(Values)>{TemplateValue(values)...});
  }

 private:
  std::u16string_view text_;
};

/// A text as a value of a template.
using Text = std::u16string_view;

}  // namespace quorvantis
