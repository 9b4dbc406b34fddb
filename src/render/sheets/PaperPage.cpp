// SPDX-License-Identifier: MIT
#include "render/sheets/PaperPage.h"

#include "model/AnswerLetters.h"
#include "model/QuestionKinds.h"
#include "platform/texts/EditorTexts.h"
#include "platform/texts/ProgramTexts.h"
#include "platform/texts/SheetTexts.h"
#include "render/Template.h"
#include "render/sheets/KeyTable.h"
#include "render/sheets/SheetFiles.h"
#include "render/sheets/SheetParts.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr Template<int, Text, Text> kQuestion{
    uR"(<div class="question" dir="auto"><div class="number">%d.</div><div class="body">%s</div>%s</div>)"};
constexpr Template<Text> kPoints{uR"(<div class="points"><bdi>(%s)</bdi></div>)"};
constexpr Template<Text, char16_t, Text> kOption{
    uR"(<div class="option%s"><div class="letter"><b>%c</b></div>%s</div>)"};
constexpr Template<> kLine{uR"(<div class="line"></div>)"};
constexpr Template<Text> kRemark{uR"(<div class="note"><bdi>%s</bdi></div>)"};
constexpr Template<Text, Text> kAnswer{uR"(<div class="answer"><bdi>%s</bdi>%s</div>)"};

constexpr int kFewestLines = 6;
constexpr int kMostLines = 16;
constexpr std::size_t kUnitsOfALine = 70;

/// More room where the model answer is longer.
int LinesFor(std::u16string_view modelAnswer) {
  const int wanted = kFewestLines + static_cast<int>(modelAnswer.size() / kUnitsOfALine);
  return std::min(wanted, kMostLines);
}

/// Whether pupils write into the text itself: a run of underscores or of dots, or empty brackets.
bool HasBlank(std::u16string_view text) {
  constexpr std::u16string_view kBlanks[] = {u"__",           u"\u2574",       u"....",   u"\u2026\u2026",
                                             u"\uFF3F\uFF3F", u"\uFF08\uFF09", u"(  ",    u"(\u3000",
                                             u"\uFF08 ",      u"\uFF08\u3000", u"<u>   ", u"[ "};
  return std::ranges::any_of(kBlanks,
                             [text](std::u16string_view blank) { return text.find(blank) != text.npos; });
}

/// The questions of a paper.
class PaperRows {
 public:
  PaperRows(const FrameSetExam& exam, bool isSolved)
      : exam_(exam), isSolved_(isSolved), keys_(KeyTable(exam)) {}

  std::u16string All() const {
    std::u16string rows;
    for (const KeyRow& key : keys_) rows += Row(Question(key));
    return rows;
  }

  std::u16string One(int number) const {
    const auto key = std::ranges::find(keys_, number, &KeyRow::number);
    return key == keys_.end() ? std::u16string() : Row(Question(*key));
  }

  /// What all questions together are worth.
  std::u16string Scores() const {
    if (HasOneScore(exam_.scoreMode)) return Caption(exam_, text_id::kSameScores);
    double total = 0;
    for (const KeyRow& key : keys_) total += static_cast<double>(key.score.value_or(0));
    return HasScoreRanges(exam_.scoreMode) ? Caption(exam_, text_id::kTotalScore, ShortScore(total))
                                           : std::u16string();
  }

 private:
  std::u16string Question(const KeyRow& key) const {
    const ExamQuestion& question = exam_.Question(key.number);
    const std::u16string body =
        Field(question.text) + QuestionFiles(exam_, question) + AnswerOfKind(question, key);
    const std::u16string points =
        key.score ? kPoints(Caption(exam_, text_id::kSheetPoints, ShortScore(*key.score))) : std::u16string();
    return kQuestion(key.number, body, points);
  }

  std::u16string AnswerOfKind(const ExamQuestion& question, const KeyRow& key) const {
    const AnswerParts parts = AnswerOf(question.kind);
    if (parts.options) return Options(question);
    if (parts.oral) return kRemark(Caption(exam_, text_id::kSheetOral));
    if (!parts.fillIn && !parts.essay) return {};
    if (isSolved_) return kAnswer(Caption(exam_, text_id::kSheetAnswer), Field(key.key));
    const int lines = parts.essay ? LinesFor(question.essayAnswer) : HasBlank(question.text) ? 0 : 1;
    std::u16string room;
    for (int i = 0; i < lines; ++i) room += kLine();
    return room;
  }

  std::u16string Options(const ExamQuestion& question) const {
    const std::u16string key = KeyLetters(question.answerLetters);
    std::u16string options;
    for (std::size_t i = 0; i < kOptionCount; ++i) {
      if (question.options[i].empty()) continue;
      const bool isMarked = isSolved_ && key.find(OptionLetter(i)) != key.npos;
      options += kOption(isMarked ? u" right" : u"", OptionLetter(i), Field(question.options[i]));
    }
    const bool lacksKey = isSolved_ && key.empty();
    return lacksKey ? options + kRemark(Caption(exam_, text_id::kSheetNoKey)) : options;
  }

  const FrameSetExam& exam_;
  bool isSolved_;
  std::vector<KeyRow> keys_;
};

std::u16string Compose(const FrameSetExam& exam, const SheetRequest& request, bool isSolved) {
  const PaperRows rows(exam, isSolved);
  const std::u16string subtitle = isSolved ? Caption(exam, text_id::kSheetSolutions) : std::u16string();
  std::u16string page = Heading(exam, request, subtitle, isSolved ? NameLines::None : NameLines::Wanted);
  if (const std::u16string scores = rows.Scores(); !scores.empty()) page += Row(kRemark(scores));
  if (const std::u16string files = ExamFiles(exam); !files.empty()) page += Row(files);
  return SheetPage(exam, request, page + rows.All());
}

}  // namespace

std::u16string ComposePaper(const FrameSetExam& exam, const SheetRequest& request) {
  return Compose(exam, request, false);
}

std::u16string ComposeSolutions(const FrameSetExam& exam, const SheetRequest& request) {
  return Compose(exam, request, true);
}

std::u16string ComposeQuestion(const FrameSetExam& exam, int number, const SheetRequest& request) {
  return PanePage(exam, request, PaperRows(exam, false).One(number));
}

}  // namespace quorvantis
