// SPDX-License-Identifier: MIT
#include "check/CheckedExam.h"

#include "model/FillInAnswers.h"
#include "text/PathText.h"
#include "text/WithoutAround.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

namespace quorvantis {

std::u16string_view WithoutBlanks(std::u16string_view text) {
  return WithoutAround(text, u" \t\r\n\v\f\u00A0\u3000\u200B\uFEFF");
}

std::vector<std::u16string_view> AnswersOf(std::u16string_view answerText) {
  std::vector<std::u16string_view> answers;
  for (const TextSpan& span : FillInAnswersIn(answerText)) {
    const std::u16string_view answer = WithoutBlanks(span.Of(answerText));
    if (!answer.empty()) answers.push_back(answer);
  }
  return answers;
}

CheckedQuestion::CheckedQuestion(int itsNumber, const ExamQuestion& itsQuestion)
    : number(itsNumber),
      question(itsQuestion),
      answer(AnswerOf(itsQuestion.kind)),
      text(WithoutBlanks(itsQuestion.text)),
      wording(WordingOf(text)),
      hasFiles(!itsQuestion.attachmentPaths[0].empty()) {
  if (answer.options) {
    for (const char16_t letter : question.answerLetters) {
      if (const auto option = OptionIndex(letter)) isKey[*option] = true;
    }
    for (std::size_t i = 0; i < kOptionCount; ++i) {
      options[i] = WithoutBlanks(question.options[i]);
      if (options[i].empty()) continue;
      ++writtenOptions;
      optionsEnd = i + 1;
    }
    keys = static_cast<std::size_t>(std::ranges::count(isKey, true));
  }
  const bool hasAnswer = writtenOptions > 0 || keys > 0 ||
                         (answer.fillIn && !AnswersOf(question.answerText).empty()) ||
                         (answer.essay && !WithoutBlanks(question.essayAnswer).empty());
  isEmpty = text.empty() && !hasAnswer && !hasFiles;
}

std::optional<std::size_t> CheckedQuestion::SingleKey() const {
  if (keys != 1) return std::nullopt;
  const auto key = static_cast<std::size_t>(std::ranges::find(isKey, true) - isKey.begin());
  return options[key].empty() ? std::nullopt : std::optional(key);
}

CheckedExam::CheckedExam(const FrameSetExam& document) : exam(document) {
  const int last = document.LastCountedQuestion();
  questions.reserve(static_cast<std::size_t>(last));
  LookAtText({}, document.title);
  LookAtFiles(0, document.examAttachmentPaths, document.examAttachmentNames);
  for (int number = 1; number <= last; ++number) {
    const ExamQuestion& question = document.Question(number);
    questions.emplace_back(number, question);
    LookAtTexts(questions.back());
    LookAtFiles(number, question.attachmentPaths, question.attachmentNames);
  }
}

void CheckedExam::LookAtTexts(const CheckedQuestion& checked) {
  const ExamQuestion& question = checked.question;
  LookAtText({checked.number, ExamFieldName::QuestionText}, question.text);
  if (checked.answer.options) {
    for (unsigned i = 0; i < kOptionCount; ++i)
      LookAtText({checked.number, ExamFieldName::Options, i}, question.options[i]);
  }
  if (checked.answer.fillIn) LookAtText({checked.number, ExamFieldName::FillInAnswer}, question.answerText);
  if (checked.answer.essay) LookAtText({checked.number, ExamFieldName::EssayAnswer}, question.essayAnswer);
}

void CheckedExam::LookAtText(const TextPlace& place, std::u16string_view text) {
  if (text.empty()) return;
  unsigned all = 0;
  bool hasMarkup = false;
  for (const char16_t unit : text) {
    all |= unit;
    hasMarkup |= unit == u'<';
  }
  texts.push_back({place, text, all < 0x80, hasMarkup ? FindMarkupFaults(text) : MarkupFaults()});
}

void CheckedExam::LookAtFiles(int question, const AttachmentList& paths, const AttachmentList& names) {
  for (unsigned i = 0; i < kMaxAttachments && !paths[i].empty(); ++i) {
    const std::filesystem::path path = TextToPath(paths[i]);
    CheckedFile file{{question, ExamFieldName::AttachmentName, i}, names[i]};
    const std::u16string ownName = PathToText(path.filename());
    if (file.name.empty()) file.name = ownName;
    const std::u16string extension = ExtensionOrNothing(ownName);
    file.kind = FileKindOf(extension).kind;
    if (question == 0 && !exam.IsPath(paths[i])) {
      file.health = FileHealth::Missing;  // nothing that may be opened
    } else if (exam.pathsWithoutContent.contains(paths[i])) {
      file.health = FileHealth::Empty;
    } else {
      std::error_code error;
      file.health = HealthOf(path, extension);
      const std::uintmax_t size = std::filesystem::file_size(path, error);
      if (!error) file.size = size;
    }
    files.push_back(std::move(file));
  }
}

}  // namespace quorvantis
