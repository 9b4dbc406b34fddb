// SPDX-License-Identifier: MIT
#include "bank/near/QuestionContentKey.h"

#include "likeness/TextSketch.h"
#include "text/Utf.h"

#include <algorithm>
#include <vector>

namespace quorvantis {
namespace {

constexpr std::size_t kKeyDigits = 32;

/// A line for each text, after its name. Normalised texts have no line ends.
void AddLines(std::string& lines, std::string_view name, const std::vector<std::u16string>& texts) {
  for (const std::u16string& text : texts) {
    lines += name;
    lines += ' ';
    lines += Utf16ToUtf8(text);
    lines += '\n';
  }
}

std::vector<std::u16string> NormalisedTexts(const std::vector<std::u16string>& texts) {
  std::vector<std::u16string> normalised;
  normalised.reserve(texts.size());
  for (const std::u16string& text : texts) normalised.push_back(Normalised(text));
  return normalised;
}

std::vector<std::u16string> InOrder(std::vector<std::u16string> texts) {
  std::sort(texts.begin(), texts.end());
  return texts;
}

}  // namespace

std::string QuestionContentKey(const QuestionContent& content, const FileDigest& digest) {
  const bool isChoice = !content.options.empty();
  std::vector<std::u16string> answers = NormalisedTexts(content.answers);
  if (isChoice) answers = InOrder(std::move(answers));
  std::string lines = "kind " + std::to_string(static_cast<int>(content.kind)) + "\n";
  AddLines(lines, "text", {Normalised(content.text)});
  AddLines(lines, "option", InOrder(NormalisedTexts(content.options)));
  AddLines(lines, "answer", answers);
  AddLines(lines, "file", InOrder(content.files));
  return digest.OfBytes(lines).substr(0, kKeyDigits);
}

bool IsContentKey(std::string_view text) {
  const auto isDigit = [](char unit) { return (unit >= '0' && unit <= '9') || (unit >= 'a' && unit <= 'f'); };
  return text.size() == kKeyDigits && std::all_of(text.begin(), text.end(), isDigit);
}

}  // namespace quorvantis
