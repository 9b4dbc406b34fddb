// SPDX-License-Identifier: MIT
#include "cli/form/KindNames.h"

#include "text/NumberText.h"
#include "text/Utf.h"

#include <algorithm>

namespace quorvantis::cli {
namespace {

std::optional<QuestionKind> KindWith(std::string_view KindRow::*column, std::string_view text) {
  const auto* row = std::ranges::find(kQuestionKinds, text, column);
  return row == std::end(kQuestionKinds) ? std::nullopt : std::optional(row->kind);
}

}  // namespace

std::string KindName(QuestionKind kind) {
  const KindRow* row = FindKind(kind);
  return row != nullptr ? std::string(row->name) : Utf16ToUtf8(FormatInteger(static_cast<int>(kind)));
}

std::optional<QuestionKind> KindNamed(std::string_view name) {
  if (const auto kind = KindWith(&KindRow::name, name)) return kind;
  const int number = ParseInteger(Utf8ToUtf16(name));
  return Utf16ToUtf8(FormatInteger(number)) == name ? std::optional(static_cast<QuestionKind>(number))
                                                    : std::nullopt;
}

std::string KindNameList() {
  std::string list;
  for (const KindRow& row : kQuestionKinds) {
    const bool isLast = &row == std::end(kQuestionKinds) - 1;
    list.append(list.empty() ? "" : isLast ? " or " : ", ").append(row.name);
  }
  return list;
}

std::optional<QuestionKind> KindOfWord(std::string_view word) {
  return KindWith(&KindRow::word, word);
}

std::string_view KindWords() {
  static const std::string words = [] {
    std::string all;
    for (const KindRow& row : kQuestionKinds) all.append(all.empty() ? "" : "|").append(row.word);
    return all;
  }();
  return words;
}

}  // namespace quorvantis::cli
