// SPDX-License-Identifier: MIT
#include "import/AnswerPictures.h"

#include "examfile/AttachmentName.h"
#include "import/marking/ImportMarkers.h"
#include "text/PathText.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::u16string_view kPictureTaken = u"$$";  // what is left of a picture in the text

bool Holds(std::u16string_view text, std::u16string_view part) {
  return text.find(part) != text.npos;
}

/// Replaces every suffix of a picture.
std::u16string WithSuffixes(std::u16string_view text, std::u16string_view replacement) {
  std::u16string result;
  for (;;) {
    const std::size_t at = text.find(kPictureSuffix);
    result += text.substr(0, at);
    if (at == text.npos) return result;
    result += replacement;
    text.remove_prefix(at + kPictureSuffix.size());
  }
}

/// The name of the first picture: from the last blank before its suffix on.
std::u16string FirstPicture(std::u16string_view text) {
  const std::u16string_view before = text.substr(0, text.find(kPictureSuffix));
  return std::u16string(before.substr(before.rfind(u' ') + 1)) += kPictureSuffix;
}

std::size_t CountIn(std::u16string_view text, std::u16string_view part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != text.npos; at = text.find(part, at + part.size())) ++count;
  return count;
}

}  // namespace

bool AnswersHavePictures(const ExamQuestion& question) {
  return Holds(question.answerText, kPictureSuffix) || Holds(question.essayAnswer, kPictureSuffix);
}

bool OptionsHavePictures(const ExamQuestion& question) {
  return std::ranges::any_of(question.options,
                             [](const std::u16string& option) { return Holds(option, kPictureSuffix); });
}

bool ShowsPictures(const ExamQuestion& question) {
  return Holds(question.text, kPictureSuffix) || AnswersHavePictures(question);
}

void MarkAnswerPictures(ExamQuestion& question, std::u16string_view notice) {
  const std::u16string marked = std::u16string(kPictureSuffix).append(notice);
  question.answerText = WithSuffixes(question.answerText, marked);
  question.essayAnswer = WithSuffixes(question.essayAnswer, marked);
}

bool HasFormula(const ExamQuestion& question) {
  return Holds(question.text, kFormulaText) || Holds(question.answerText, kFormulaText) ||
         Holds(question.essayAnswer, kFormulaText);
}

std::size_t CountFormulas(const ExamPaper& exam, int first, int last) {
  std::size_t count = 0;
  for (int n = first; n <= last; ++n) {
    const ExamQuestion& question = exam.Question(n);
    for (const std::u16string* text : {&question.text, &question.answerText, &question.essayAnswer})
      count += CountIn(*text, kFormulaText);
    for (const std::u16string& option : question.options) count += CountIn(option, kFormulaText);
  }
  return count;
}

bool AttachTextPicture(ExamQuestion& question, const std::filesystem::path& workRoot) {
  if (!Holds(question.text, kPictureSuffix)) return false;
  const std::u16string name = FirstPicture(question.text);
  question.text = WithSuffixes(question.text, kPictureTaken);
  question.attachmentPaths[0] = PathToText(workRoot / TextToPath(FitFileName(FileNameOf(name))));
  question.attachmentNames[0] = name;
  return true;
}

}  // namespace quorvantis
