// SPDX-License-Identifier: MIT
#include "render/sheets/KeyPage.h"

#include "model/QuestionKinds.h"
#include "platform/TextNumbers.h"
#include "render/Template.h"
#include "render/sheets/KeyTable.h"
#include "render/sheets/SheetParts.h"

namespace quorvantis {
namespace {

constexpr Template<Text, Text, Text> kKeys{
    uR"(<table class="keys%s"><thead>%s</thead><tbody>%s</tbody></table>)"};
constexpr Template<Text, Text, Text> kHeadings{uR"(<tr><th>%s</th><th>%s</th><th>%s</th></tr>)"};
constexpr Template<int, Text, Text> kLetters{
    uR"(<tr><td>%d</td><td class="letters">%s</td><td>%s</td></tr>\n)"};
constexpr Template<int, Text, Text> kAnswers{uR"(<tr><td>%d</td><td dir="auto">%s</td><td>%s</td></tr>\n)"};
constexpr Template<Text> kSum{uR"(<div class="sum">%s</div>)"};

constexpr std::size_t kBlock = 10;

bool HasLetters(const KeyRow& row) {
  return AnswerOf(row.kind).options;
}

/// Composes the rows of the page.
class KeyRows {
 public:
  explicit KeyRows(const FrameSetExam& exam)
      : exam_(exam),
        headings_(kHeadings(
            Caption(exam, text_id::kSheetNumber), Caption(exam, text_id::kSheetAnswer),
            HasScoreRanges(exam.scoreMode) ? Caption(exam, text_id::kSheetScore) : std::u16string())) {}

  std::u16string All() {
    double total = 0;
    for (const KeyRow& row : KeyTable(exam_)) {
      Add(row);
      total += static_cast<double>(row.score.value_or(0));
    }
    EndRun();
    if (HasScoreRanges(exam_.scoreMode))
      page_ += Row(kSum(Caption(exam_, text_id::kTotalScore, ShortScore(total))));
    if (HasOneScore(exam_.scoreMode)) page_ += Row(kSum(Caption(exam_, text_id::kSameScores)));
    return page_;
  }

 private:
  void Add(const KeyRow& row) {
    if (HasLetters(row) != runHasLetters_) EndRun();
    runHasLetters_ = HasLetters(row);
    const std::u16string score = row.score ? ShortScore(*row.score) : std::u16string();
    if (runHasLetters_) {
      block_ += kLetters(row.number, row.key.empty() ? Caption(exam_, text_id::kSheetNoKey) : row.key, score);
      if (++inBlock_ == kBlock) EndBlock();
    } else {
      const bool isOral = AnswerOf(row.kind).oral;
      block_ += kAnswers(row.number, isOral ? Caption(exam_, text_id::kSheetOral) : Field(row.key), score);
    }
  }

  void EndBlock() {
    if (block_.empty()) return;
    run_ += kKeys(runHasLetters_ ? u"" : u" wide", headings_, block_);
    block_.clear();
    inBlock_ = 0;
  }

  void EndRun() {
    EndBlock();
    if (!run_.empty()) page_ += Row(run_);
    run_.clear();
  }

  const FrameSetExam& exam_;
  const std::u16string headings_;
  bool runHasLetters_ = true;
  std::size_t inBlock_ = 0;
  std::u16string block_;  ///< lines of the table that is being composed
  std::u16string run_;    ///< tables of neighbouring questions with keys of the same form
  std::u16string page_;
};

}  // namespace

std::u16string ComposeKey(const FrameSetExam& exam, const SheetRequest& request) {
  return SheetPage(
      exam, request,
      Heading(exam, request, Caption(exam, text_id::kSheetKey), NameLines::None) + KeyRows(exam).All());
}

}  // namespace quorvantis
