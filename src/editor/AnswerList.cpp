// SPDX-License-Identifier: MIT
#include "editor/AnswerList.h"

#include "model/ExamQuestion.h"

namespace quorvantis {
namespace {

bool IsBlank(std::u16string_view text) {
  return text.find_first_not_of(u' ') == std::u16string_view::npos;
}

}  // namespace

std::u16string WithoutOpenSeparator(std::u16string_view line) {
  const std::size_t last = line.rfind(kListSeparator);
  const bool open = last != std::u16string_view::npos && IsBlank(line.substr(last + kListSeparator.size()));
  return std::u16string(open ? line.substr(0, last) : line);
}

std::u16string WithOpenSeparator(std::u16string_view line) {
  if (IsBlank(line)) return {};
  const std::u16string closed = WithoutOpenSeparator(line);
  return closed + std::u16string(kListSeparator);
}

}  // namespace quorvantis
