// SPDX-License-Identifier: MIT
#include "learn/StudyTexts.h"

#include "import/labels/LineText.h"
#include "learn/LearnedTexts.h"
#include "platform/texts/LearnTexts.h"
#include "platform/texts/StudioTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::size_t kLongestExcerpt = 60;  // UTF-16 units

bool LacksKey(const ReadQuestion& question) {
  const bool hasLetters = question.kind == ReadKind::Choice || question.kind == ReadKind::TrueFalse;
  return hasLetters ? question.mask == 0 : question.answer.empty();
}

std::u16string InOneLine(std::u16string_view text) {
  std::u16string line(text.substr(0, kLongestExcerpt));
  for (char16_t& unit : line) {
    if (unit < u' ' || IsLineEnd(unit)) unit = u' ';
  }
  return text.size() > kLongestExcerpt ? line + u"\u2026" : line;
}

/// Composes the lines about one study.
class StudyWords {
 public:
  StudyWords(const PaperStudy& study, const StringTable& strings) : study_(study), strings_(strings) {}

  std::u16string Headline() {
    if (const auto* failure = Failure()) return FailureText(*failure, strings_);
    const ReadPaper& paper = study_.Reading().paper;
    Say(text_id::kLearnedQuestions, {Number(paper.questions.size())});
    if (const int count = QuestionsWithoutKey(paper)) Say(text_id::kWithoutKeyCount, {FormatInteger(count)});
    if (!paper.dropped.empty())
      Say(text_id::kPartsDropped, {Number(paper.dropped.size()), InOneLine(paper.dropped.front().text)});
    std::u16string line;
    for (const std::u16string& said : lines_) line += (line.empty() ? u"" : u" ") + said;
    return line;
  }

  std::vector<std::u16string> Lines() {
    if (Failure() != nullptr) return {};
    if (!study_.HasOwnRules()) lines_ = LearnedLines(study_.Learned(), strings_);
    Say(text_id::kUnderstoodShare, {FormatInteger(static_cast<std::int64_t>(study_.Explained() * 100))});
    TellUnfollowed();
    return std::move(lines_);
  }

 private:
  static std::u16string Number(std::size_t number) {
    return FormatInteger(static_cast<std::int64_t>(number));
  }

  void Say(int text, std::initializer_list<std::u16string_view> values) {
    lines_.push_back(FillMessage(strings_.Text(text), values));
  }

  const ImportFailure* Failure() const {
    const PaperReading& reading = study_.Reading();
    if (reading.marked.failure) return &*reading.marked.failure;
    return reading.paper.failure ? &*reading.paper.failure : nullptr;
  }

  /// The learner may tell them itself.
  void TellUnfollowed() {
    const auto& facts = study_.Learned().facts;
    const bool isTold = std::any_of(facts.begin(), facts.end(), [](const LearnedFact& fact) {
      return fact.text == text_id::kLearnedMarkUnfollowed;
    });
    if (isTold || study_.HasOwnRules()) return;
    for (const std::size_t index : study_.Learned().unfollowed) {
      if (index >= study_.Marks().size()) continue;
      const PaperMark& mark = study_.Marks()[index];
      Say(text_id::kLearnedMarkUnfollowed,
          {ShortText(study_.StudiedPaper(), mark.span), RoleName(mark.role, strings_)});
    }
  }

  const PaperStudy& study_;
  const StringTable& strings_;
  std::vector<std::u16string> lines_;
};

}  // namespace

int QuestionsWithoutKey(const ReadPaper& paper) {
  return static_cast<int>(std::count_if(paper.questions.begin(), paper.questions.end(), LacksKey));
}

std::u16string StudyHeadline(const PaperStudy& study, const StringTable& strings) {
  return StudyWords(study, strings).Headline();
}

std::vector<std::u16string> StudyLines(const PaperStudy& study, const StringTable& strings) {
  return StudyWords(study, strings).Lines();
}

std::u16string ShortText(const Paper& paper, TextSpan span) {
  return InOneLine(span.Of(paper.source.characters));
}

}  // namespace quorvantis
