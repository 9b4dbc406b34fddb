// SPDX-License-Identifier: MIT
#include "render/sheets/KeyPage.h"

#include "model/QuestionKinds.h"
#include "platform/texts/EditorTexts.h"
#include "platform/texts/ProgramTexts.h"
#include "platform/texts/SheetTexts.h"
#include "render/Template.h"
#include "render/sheets/KeyTable.h"
#include "render/sheets/SheetParts.h"

#include <utility>
#include <vector>

namespace quorvantis {
namespace {

constexpr Template<Text, Text, Text> kKeys{
    uR"(<table class="keys%s"><thead>%s</thead><tbody>%s</tbody></table>)"};
constexpr Template<Text, Text, Text> kHeadings{
    uR"(<tr><th><bdi>%s</bdi></th><th><bdi>%s</bdi></th><th><bdi>%s</bdi></th></tr>)"};
constexpr Template<int, Text, Text> kLetters{
    uR"(<tr><td>%d</td><td class="letters">%s</td><td>%s</td></tr>\n)"};
constexpr Template<int, Text, Text> kAnswers{uR"(<tr><td>%d</td><td dir="auto">%s</td><td>%s</td></tr>\n)"};
constexpr Template<Text> kSum{uR"(<div class="sum"><bdi>%s</bdi></div>)"};

constexpr std::size_t kBlock = 10;

/// Fewer letters between other answers stand in their table: blocks of their own would only take room.
constexpr std::size_t kShortRun = 10;

/// Neighbouring questions whose keys stand in the same tables.
struct KeyRun {
  bool areLetters;
  std::vector<KeyRow> rows;
};

void Append(std::vector<KeyRun>& runs, KeyRun run) {
  if (runs.empty() || runs.back().areLetters != run.areLetters) {
    runs.push_back(std::move(run));
  } else {
    runs.back().rows.insert(runs.back().rows.end(), run.rows.begin(), run.rows.end());
  }
}

std::vector<KeyRun> RunsOf(const std::vector<KeyRow>& rows) {
  std::vector<KeyRun> byKind;
  for (const KeyRow& row : rows) Append(byKind, {AnswerOf(row.kind).options, {row}});
  std::vector<KeyRun> runs;
  for (KeyRun& run : byKind) {
    if (byKind.size() > 1 && run.rows.size() < kShortRun) run.areLetters = false;
    Append(runs, std::move(run));
  }
  return runs;
}

/// Composes the rows of the page.
class KeyRows {
 public:
  explicit KeyRows(const FrameSetExam& exam)
      : exam_(exam),
        headings_(kHeadings(
            Caption(exam, text_id::kSheetNumber), Caption(exam, text_id::kSheetAnswer),
            HasScoreRanges(exam.scoreMode) ? Caption(exam, text_id::kSheetScore) : std::u16string())) {}

  std::u16string All() const {
    const std::vector<KeyRow> keys = KeyTable(exam_);
    std::u16string rows;
    for (const KeyRun& run : RunsOf(keys)) rows += Row(run.areLetters ? Blocks(run.rows) : Wide(run.rows));
    double total = 0;
    for (const KeyRow& key : keys) total += static_cast<double>(key.score.value_or(0));
    if (HasScoreRanges(exam_.scoreMode))
      rows += Row(kSum(Caption(exam_, text_id::kTotalScore, ShortScore(total))));
    if (HasOneScore(exam_.scoreMode)) rows += Row(kSum(Caption(exam_, text_id::kSameScores)));
    return rows;
  }

 private:
  std::u16string Blocks(const std::vector<KeyRow>& keys) const {
    std::u16string blocks;
    std::u16string lines;
    for (std::size_t i = 0; i < keys.size(); ++i) {
      lines += kLetters(keys[i].number, Letters(keys[i]), Score(keys[i]));
      if ((i + 1) % kBlock != 0 && i + 1 != keys.size()) continue;
      blocks += kKeys(u"", headings_, lines);
      lines.clear();
    }
    return blocks;
  }

  std::u16string Wide(const std::vector<KeyRow>& keys) const {
    std::u16string lines;
    for (const KeyRow& key : keys) {
      const AnswerParts parts = AnswerOf(key.kind);
      if (parts.options) {
        lines += kLetters(key.number, Letters(key), Score(key));
      } else {
        lines += kAnswers(key.number, parts.oral ? Caption(exam_, text_id::kSheetOral) : Field(key.key),
                          Score(key));
      }
    }
    return kKeys(u" wide", headings_, lines);
  }

  std::u16string Letters(const KeyRow& key) const {
    return key.key.empty() ? Caption(exam_, text_id::kSheetNoKey) : key.key;
  }

  static std::u16string Score(const KeyRow& key) {
    return key.score ? ShortScore(*key.score) : std::u16string();
  }

  const FrameSetExam& exam_;
  const std::u16string headings_;
};

}  // namespace

std::u16string ComposeKey(const FrameSetExam& exam, const SheetRequest& request) {
  return SheetPage(
      exam, request,
      Heading(exam, request, Caption(exam, text_id::kSheetKey), NameLines::None) + KeyRows(exam).All());
}

}  // namespace quorvantis
