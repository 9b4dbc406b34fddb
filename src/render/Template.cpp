// SPDX-License-Identifier: MIT
#include "render/Template.h"

#include "text/NumberText.h"

namespace quorvantis {
namespace {

/// At least three characters including a sign, padded with zeros.
std::u16string ThreeDigits(int value) {
  std::u16string digits = FormatInteger(value);
  if (digits.size() < 3) digits.insert(value < 0 ? 1 : 0, 3 - digits.size(), u'0');
  return digits;
}

void AppendValue(std::u16string& page, std::u16string_view mark, const TemplateValue& value) {
  if (const auto* text = std::get_if<std::u16string_view>(&value)) page += *text;
  if (const auto* character = std::get_if<char16_t>(&value)) page += *character;
  if (const auto* score = std::get_if<float>(&value)) page += FormatScore(*score);
  if (const auto* number = std::get_if<int>(&value)) {
    page += mark == u"%03d" ? ThreeDigits(*number) : FormatInteger(*number);
  }
}

}  // namespace

std::u16string FillTemplate(std::u16string_view text, std::span<const TemplateValue> values) {
  std::u16string page;
  auto value = values.begin();
  for (std::size_t at; (at = FindTemplateMark(text)) != std::u16string_view::npos;) {
    const TemplateMark mark = TemplateMarkAt(text.substr(at));
    page += text.substr(0, at);
    if (mark.value) {
      AppendValue(page, mark.text, *value++);
    } else {
      page += mark.escape;
    }
    text.remove_prefix(at + mark.text.size());
  }
  return page += text;
}

}  // namespace quorvantis
