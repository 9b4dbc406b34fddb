// SPDX-License-Identifier: MIT
#include "exchange/exam/ExamToExchange.h"

#include "exchange/form/Blanks.h"
#include "exchange/form/ExchangeLimits.h"
#include "exchange/markup/Markup.h"
#include "exchange/markup/MarkupNotes.h"
#include "model/AnswerLetters.h"
#include "model/QuestionKinds.h"
#include "model/document/FrameSetExam.h"
#include "platform/texts/ExchangeTexts.h"
#include "scoring/ScoreSegments.h"
#include "text/NumberText.h"
#include "text/PathText.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// Converts the questions of one exam.
class ExamReading {
 public:
  ExamReading(const FrameSetExam& exam, ExchangeNotes& notes) : exam_(exam), notes_(notes) {}

  ExchangedExam Read() {
    ExchangedExam exchanged;
    exchanged.title = Text(exam_.title, nullptr);
    exchanged.shufflesOptions = exam_.randomMode == RandomMode::Options;
    if (exam_.randomMode == RandomMode::Sequence) notes_.Tell(text_id::kExchangeRandomSequence);
    TellExamFiles();
    const int count = exam_.LastCountedQuestion();
    for (int n = 1; n <= count; ++n) {
      notes_.Begin(n);
      exchanged.questions.push_back(Question(n));
    }
    TakeScores(exchanged);
    notes_.Begin(0);
    return exchanged;
  }

 private:
  void TellExamFiles() {
    const auto& paths = exam_.examAttachmentPaths;
    const auto count = std::ranges::count_if(paths, [](const std::u16string& path) { return !path.empty(); });
    if (count > 0) notes_.Tell(text_id::kExchangeExamFiles, {FormatInteger(count)});
  }

  /// A picture in the text is that of an attached file, or gone.
  std::u16string Text(const std::u16string& text, const ExamQuestion* question) {
    ReadMarkup read = ReadExamText(text);
    TellMarkupLosses(read.losses, notes_);
    for (const MarkupReference& reference : read.references) {
      const bool isAttached = question != nullptr &&
                              std::ranges::any_of(question->attachmentNames, [&](const std::u16string& name) {
                                return !name.empty() && reference.address.ends_with(name);
                              });
      if (!isAttached) notes_.Tell(text_id::kExchangeReferenceLost, {Excerpt(reference.address)});
    }
    return std::move(read.text);
  }

  ExchangedQuestion Question(int n) {
    const ExamQuestion& source = exam_.Question(n);
    ExchangedQuestion question;
    question.number = n;
    question.kind = source.kind;
    question.text = Text(source.text, &source);
    const AnswerParts parts = AnswerOf(source.kind);
    if (parts.options) question.options = Options(source);
    if (parts.fillIn) {
      BlankAnswers answers = SplitAnswers(source.answerText);
      for (std::u16string& answer : answers) answer = Text(answer, nullptr);
      question.blanks = ByBlank(question.text, answers);
      TellEmptyAnswers(answers, question.blanks.size());
    }
    if (parts.essay) question.modelAnswer = Text(source.essayAnswer, nullptr);
    question.files = FilesOf(source);
    if (source.oralFlag == 1 && !question.files.empty()) notes_.Tell(text_id::kExchangeMutedFiles);
    if (!IsKnown(source.kind)) MakeEssayOfAll(source, question);
    return question;
  }

  /// Those that are alternatives are left out; a blank may have none.
  void TellEmptyAnswers(const BlankAnswers& answers, std::size_t blanks) {
    const bool hasEmpty = answers.size() > 1 && std::ranges::find(answers, std::u16string()) != answers.end();
    if (hasEmpty && blanks != answers.size()) notes_.Tell(text_id::kExchangeEmptyAnswer);
  }

  /// Whatever a question of an unknown kind has may count: options are lines of the text, answers and right
  /// options lines of the model answer.
  void MakeEssayOfAll(const ExamQuestion& source, ExchangedQuestion& question) {
    notes_.Tell(text_id::kExchangeUnknownKind);
    question.kind = QuestionKind::Essay;
    const auto addLine = [](std::u16string& text, const std::u16string& line) {
      if (line.empty()) return;
      if (!text.empty()) text += u"\r\n";
      text += line;
    };
    // Files keep the letters only, and readers make a mask of them for choices alone.
    const int mask = source.answerMask | AnswerLettersToMask(source.answerLetters);
    const auto isRight = [mask](std::size_t i) { return (mask & AnswerBoxWeight(i)) != 0; };
    question.modelAnswer = Text(source.essayAnswer, nullptr);
    for (const std::u16string& answer : SplitAnswers(source.answerText))
      addLine(question.modelAnswer, Text(answer, nullptr));
    for (std::size_t i = 0; i < kOptionCount; ++i) {
      const std::u16string option = Text(source.options[i], nullptr);
      if (option.empty()) continue;
      const std::u16string line = std::u16string{OptionLetter(i), u'.', u' '} + option;
      addLine(question.text, line);
      if (isRight(i)) addLine(question.modelAnswer, line);
    }
  }

  /// Without empty ones: other programs have no gaps.
  std::vector<ExchangedOption> Options(const ExamQuestion& source) {
    std::vector<ExchangedOption> options;
    bool leftOut = false;
    for (std::size_t i = 0; i < kOptionCount; ++i) {
      const std::u16string text = Text(source.options[i], nullptr);
      const bool isRight = (source.answerMask & AnswerBoxWeight(i)) != 0;
      if (!text.empty()) {
        if (leftOut) notes_.Tell(text_id::kExchangeEmptyOption);
        options.push_back({text, isRight});
      } else {
        leftOut = true;
        if (isRight) notes_.Tell(text_id::kExchangeEmptyRightOption);
      }
    }
    return options;
  }

  std::vector<ExchangedFile> FilesOf(const ExamQuestion& source) {
    std::vector<ExchangedFile> files;
    for (std::size_t i = 0; i < kMaxAttachments; ++i) {
      if (source.attachmentPaths[i].empty()) continue;
      ExchangedFile file{source.attachmentNames[i], TextToPath(source.attachmentPaths[i])};
      std::error_code error;
      const bool isEmpty = exam_.pathsWithoutContent.contains(source.attachmentPaths[i]);
      const bool isFile = isEmpty || std::filesystem::is_regular_file(file.path, error);
      if (!isFile) {
        notes_.Tell(text_id::kExchangeFileMissing, {file.name});
      } else if (!isEmpty && std::filesystem::file_size(file.path, error) > kMaxExchangedFile) {
        notes_.Tell(text_id::kExchangeFileTooLarge, {file.name});
      } else {
        files.push_back(std::move(file));
      }
    }
    return files;
  }

  void TakeScores(ExchangedExam& exchanged) const {
    if (!HasScoreRanges(exam_.scoreMode)) return;
    const int count = static_cast<int>(exchanged.questions.size());
    for (const ScoreSegment& segment : SegmentsOf(DistributionOf(exam_), count)) {
      for (int n = segment.first; n <= segment.last; ++n)
        exchanged.questions[static_cast<std::size_t>(n - 1)].score = static_cast<double>(segment.score);
    }
  }

  const FrameSetExam& exam_;
  ExchangeNotes& notes_;
};

}  // namespace

ExchangedExam ExamToExchange(const FrameSetExam& exam, ExchangeNotes& notes) {
  return ExamReading(exam, notes).Read();
}

}  // namespace quorvantis
