// SPDX-License-Identifier: MIT
// The texts of an exam that a teacher reads and writes, each with its place.
#pragma once

#include "model/ExamFields.h"

#include <compare>
#include <cstddef>
#include <functional>
#include <string>

namespace quorvantis {

class FrameSetExam;

/// Where a text of an exam stands.
struct TextPlace {
  int question = 0;  ///< 1 to 500; 0 for a text of the exam as a whole
  ExamFieldName field = ExamFieldName::Title;
  unsigned index = 0;  ///< of the option (0 for A to 4 for E) or of the attached file; else 0

  auto operator<=>(const TextPlace&) const = default;  // NOLINT(modernize-use-nullptr): there is none
};

/// A new text for a field that has held `before`.
struct FieldRewrite {
  TextPlace place;
  std::u16string before;
  std::u16string after;
};

/// Calls `visit` with every text that is not empty, from the title to the last question: texts of questions,
/// their answers and the names of attached files. Of the answers only those that belong to the kind of the
/// question: the others are not shown, and a file does not keep them.
void VisitTexts(const FrameSetExam& exam,
                const std::function<void(const TextPlace& place, const std::u16string& text)>& visit);

/// The text at a place of an exam; null for a place that no exam has.
const std::u16string* TextAt(const FrameSetExam& exam, const TextPlace& place);
std::u16string* TextAt(FrameSetExam& exam, const TextPlace& place);

/// Whether the field has a single line in the window.
constexpr bool HasOneLine(ExamFieldName field) {
  return field == ExamFieldName::Title || field == ExamFieldName::FillInAnswer ||
         field == ExamFieldName::AttachmentName;
}

}  // namespace quorvantis
