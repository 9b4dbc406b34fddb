// SPDX-License-Identifier: MIT
#pragma once

#include "model/ExamPaper.h"

#include <array>
#include <string>

namespace quorvantis {

/// The text fields that the user types into.
enum class FormField { Title, Text, OptionA, OptionB, OptionC, OptionD, OptionE, Answer, Essay };

/// The option field of box `index` (0 for A to 4 for E).
constexpr FormField OptionField(std::size_t index) {
  return static_cast<FormField>(static_cast<std::size_t>(FormField::OptionA) + index);
}

/// The limit of a field, in UTF-16 units; a line break counts as two (CR LF).
std::size_t MaxLength(FormField field);

/// State of an answer box. Grey stands for an answer mask above 31; storing the question treats it as ticked.
enum class CheckState : int { Off = 0, On = 1, Grey = 2 };

/// The values that the window shows for one question. They move between form and document only when a
/// question is stored or loaded, never while the user types.
struct QuestionForm {
  int number = 1;  ///< of the current question
  std::u16string title;
  std::u16string text;
  OptionTexts options;
  std::array<CheckState, kOptionCount> checks{};
  std::u16string answer;  ///< the fill-in answer line
  std::u16string essay;
  RandomMode random = RandomMode::Off;

  std::u16string& Field(FormField field);
  const std::u16string& Field(FormField field) const;
};

/// Fills the form with the question's own data; number, title and random mode are not part of it.
void LoadForm(const ExamQuestion& question, QuestionForm& form);

/// The reverse. The kind shown in the window is not part of the form.
void StoreForm(const QuestionForm& form, QuestionKind kind, ExamQuestion& question);

}  // namespace quorvantis
