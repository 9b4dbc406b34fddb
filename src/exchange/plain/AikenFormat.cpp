// SPDX-License-Identifier: MIT
#include "exchange/plain/AikenFormat.h"

#include "exchange/form/ExchangeLimits.h"
#include "exchange/form/TextSource.h"
#include "exchange/markup/Markup.h"
#include "platform/texts/ExchangeTexts.h"
#include "text/AsciiCase.h"
#include "text/Utf.h"

#include <algorithm>
#include <utility>

namespace quorvantis {
namespace {

constexpr std::u16string_view kAnswer = u"ANSWER:";

bool IsAnswerLine(std::u16string_view line) {
  return EqualsIgnoringAsciiCase(line.substr(0, kAnswer.size()), kAnswer);
}

/// Whether the line is option `index`: its letter, and a dot or a bracket.
bool IsOptionLine(std::u16string_view line, std::size_t index) {
  return line.size() > 1 && index < 26 && AsciiUpper(line[0]) == static_cast<char16_t>(u'A' + index) &&
         (line[1] == u'.' || line[1] == u')') && (line.size() == 2 || line[2] == u' ' || line[2] == u'\t');
}

/// Puts the questions together line by line.
class AikenLines {
 public:
  explicit AikenLines(ExchangeNotes& notes) : notes_(notes) { notes_.Begin(1); }

  void Take(std::u16string_view line) {
    const bool isBelowBlank = std::exchange(isBlank_, line.empty());
    if (line.empty()) return;
    if (IsAnswerLine(line)) return End(line.substr(kAnswer.size()));
    if (!text_.empty() && IsOptionLine(line, options_.size())) {
      options_.emplace_back(Trimmed(line.substr(2)));
    } else {
      // What follows a blank line is the next question, even if this one has no answer.
      if (isBelowBlank && options_.size() > 1) End({});
      std::u16string& longer = options_.empty() ? text_ : options_.back();
      if (!longer.empty()) longer.push_back(u'\n');
      longer += line;
    }
  }

  std::vector<ExchangedQuestion> Finish() {
    if (!text_.empty()) notes_.Tell(text_id::kExchangePartNotRead, {Excerpt(text_)});
    notes_.Begin(0);
    return std::move(questions_);
  }

 private:
  void End(std::u16string_view letters) {
    if (text_.empty() || options_.empty()) {
      notes_.Tell(text_id::kExchangePartNotRead, {Excerpt(text_)});
    } else {
      AddQuestion(Trimmed(letters));
    }
    text_.clear();
    options_.clear();
    notes_.Begin(notes_.Question() + 1);
  }

  void AddQuestion(std::u16string_view letters) {
    ExchangedQuestion question;
    question.number = notes_.Question();
    question.text = PlainToExamText(text_);
    bool hasRight = false;
    for (std::size_t i = 0; i < options_.size(); ++i) {
      const auto isLetter = [i](char16_t unit) {
        return AsciiUpper(unit) == static_cast<char16_t>(u'A' + i);
      };
      const bool isRight = std::ranges::any_of(letters, isLetter);
      hasRight = hasRight || isRight;
      question.options.push_back({PlainToExamText(options_[i]), isRight});
    }
    if (!hasRight) notes_.Tell(text_id::kExchangeNoRightRead);
    questions_.push_back(std::move(question));
  }

  ExchangeNotes& notes_;
  std::vector<ExchangedQuestion> questions_;
  std::u16string text_;
  std::vector<std::u16string> options_;
  bool isBlank_ = false;  ///< the line before
};

}  // namespace

bool LooksLikeAiken(const ExchangeSource& source) {
  const std::u16string head = HeadText(source);
  bool hasOption = false;
  for (const std::u16string_view line : LinesOf(head)) {
    if (IsOptionLine(Trimmed(line), 0)) hasOption = true;
    if (hasOption && IsAnswerLine(Trimmed(line))) return true;
  }
  return false;
}

bool IsNoAikenText(std::u16string_view line) {
  const bool isOption =
      line.size() > 1 && line[0] >= u'A' && line[0] <= u'Z' && (line[1] == u'.' || line[1] == u')');
  return isOption || IsAnswerLine(line);
}

std::optional<ExchangedExam> AikenReader::Read(const ExchangeSource& source, ReadingTools& tools) {
  const auto text = ReadSourceText(source, tools);
  if (!text) return std::nullopt;
  AikenLines lines(tools.notes);
  ExchangedExam exam;
  for (const std::u16string_view line : LinesOf(*text)) {
    const std::u16string_view trimmed = Trimmed(line);
    exam.isCutShort = !trimmed.empty() && tools.notes.Question() > static_cast<int>(kMaxReadQuestions);
    if (exam.isCutShort) break;
    lines.Take(trimmed);
  }
  exam.questions = lines.Finish();
  return exam;
}

std::string AikenWriter::Write(const ExchangedExam& exam, const StringTable&, Progress&) {
  std::u16string text;
  for (const ExchangedQuestion& question : exam.questions) {
    text += ExamTextToPlain(question.text) + u"\n";
    char16_t right = u'A';
    for (std::size_t i = 0; i < question.options.size(); ++i) {
      const auto letter = static_cast<char16_t>(u'A' + i);
      text.append({letter, u'.', u' '}).append(ExamTextToPlain(question.options[i].text)).append(u"\n");
      if (question.options[i].isRight) right = letter;
    }
    text.append(kAnswer).append({u' ', right, u'\n', u'\n'});
  }
  return Utf16ToUtf8(text);
}

}  // namespace quorvantis
