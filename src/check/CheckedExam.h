// SPDX-License-Identifier: MIT
#pragma once

#include "check/FileContent.h"
#include "check/Markup.h"
#include "check/wording/QuestionWording.h"
#include "model/AnswerLetters.h"
#include "model/FileKinds.h"
#include "model/QuestionKinds.h"
#include "model/document/ExamTexts.h"
#include "model/document/FrameSetExam.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// The text without blanks at its ends: ASCII blanks and line ends, no-break and wide ones.
std::u16string_view WithoutBlanks(std::u16string_view text);

/// The answers of a fill-in question, without blanks around them and without empty ones.
std::vector<std::u16string_view> AnswersOf(std::u16string_view answerText);

/// A question with what several rules ask about it. Refers to the question, which must outlive it.
class CheckedQuestion {
 public:
  CheckedQuestion(int number, const ExamQuestion& question);

  const int number;
  const ExamQuestion& question;
  const AnswerParts answer;                                 ///< what belongs to its kind
  const std::u16string_view text;                           ///< without blanks around it; likewise:
  std::array<std::u16string_view, kOptionCount> options{};  ///< empty ones if the kind has none
  const QuestionWording wording;                            ///< of the text
  std::array<bool, kOptionCount> isKey{};                   ///< none if the kind has no options
  std::size_t writtenOptions = 0;
  std::size_t optionsEnd = 0;  ///< index after the last option with a text
  std::size_t keys = 0;
  bool hasFiles = false;
  bool isEmpty = false;  ///< no text, no answer of its kind, no file

  /// The only right option, if there is exactly one and it has a text.
  std::optional<std::size_t> SingleKey() const;
};

/// A text that appears on pages, looked at once for all rules: the title, and of each question its text and
/// the answers that belong to its kind.
struct CheckedText {
  TextPlace place;
  std::u16string_view text;  ///< not empty
  bool isAscii = true;
  MarkupFaults markup;  ///< of a text without "<": none
};

/// An attached file, looked at once for all rules.
struct CheckedFile {
  TextPlace place;      ///< of its name
  std::u16string name;  ///< as the user sees it
  FileKind kind = FileKind::Other;
  FileHealth health = FileHealth::Good;
  std::uintmax_t size = 0;  ///< bytes
};

/// An exam as the rules see it: its questions up to the last one that a file keeps, and their files.
class CheckedExam {
 public:
  /// Looks at the attached files. The exam must outlive this, and must not change meanwhile.
  explicit CheckedExam(const FrameSetExam& document);

  const FrameSetExam& exam;
  std::vector<CheckedQuestion> questions;  ///< question n is at n - 1
  std::vector<CheckedText> texts;          ///< the title first, then by question
  std::vector<CheckedFile> files;          ///< those of the exam as a whole first

  int LastQuestion() const { return static_cast<int>(questions.size()); }

 private:
  void LookAtText(const TextPlace& place, std::u16string_view text);
  void LookAtTexts(const CheckedQuestion& checked);
  void LookAtFiles(int question, const AttachmentList& paths, const AttachmentList& names);
};

}  // namespace quorvantis
