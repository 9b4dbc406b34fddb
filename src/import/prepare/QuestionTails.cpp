// SPDX-License-Identifier: MIT
#include "import/prepare/QuestionTails.h"

#include "import/labels/OptionSequence.h"
#include "import/lines/AnswerWords.h"
#include "import/lines/LineBullet.h"
#include "import/lines/LineLabel.h"
#include "import/lines/LineWords.h"
#include "import/marking/RuleKeys.h"
#include "import/paper/PreparedLabels.h"
#include "import/paper/RuleMatches.h"

#include <algorithm>
#include <compare>
#include <functional>
#include <map>
#include <utility>

namespace quorvantis {
namespace {

/// How labels are written.
struct LabelStyle {
  std::size_t alphabet = 0;
  char16_t open = 0;
  char16_t close = 0;

  auto operator<=>(const LabelStyle&) const = default;  // NOLINT(modernize-use-nullptr)
};

/// Finds what lines are.
class LineClassification {
 public:
  LineClassification(std::u16string_view text, TextSpan within) : text_(text), within_(within) {
    for (const TextSpan& line : LinesOf(text, within)) {
      const bool isBlank = Trimmed(text, line).IsEmpty();
      lines_.push_back({line, isBlank ? LineKind::Blank : LineKind::Text});
    }
  }

  std::vector<ClassifiedLine> Classify(const PreparationContext& context) {
    MarkOptions();
    MarkAnswers(rule_key::kPreAnswer, context.rules.m_strPreAnswer, context);
    MarkAnswers(rule_key::kPreAnswer, kPreparedKeyPattern, context);
    MarkShownAnswers();
    return std::move(lines_);
  }

 private:
  using Blocks = std::vector<TextSpan>;  ///< of lines: the first and the one after the last

  std::size_t LineAt(std::size_t place) const {
    const auto after = std::ranges::upper_bound(lines_, place, {},
                                                [](const ClassifiedLine& line) { return line.span.begin; });
    return after == lines_.begin() ? 0 : static_cast<std::size_t>(after - lines_.begin()) - 1;
  }

  void MarkAnswers(std::u16string_view key, std::u16string_view pattern, const PreparationContext& context) {
    for (const TextSpan& match : MatchesOf(key, pattern, text_, within_, context.isCancelled)) {
      const TextSpan label = Trimmed(text_, match);
      if (!label.IsEmpty() && BeginsLine(text_, label.begin))
        lines_[LineAt(label.begin)].kind = LineKind::Answer;
    }
  }

  /// Answers whose label no rule names: behind options, a line that leads to one of them. Further lines with
  /// labels, as of explanations, may follow if other answers have the same.
  void MarkShownAnswers() {
    std::vector<std::size_t> answers;
    std::size_t block = 0;
    for (std::size_t i = 1; i < lines_.size(); ++i) {
      if (lines_[i].kind == LineKind::Option && lines_[i - 1].kind != LineKind::Option) block = i;
      if (lines_[i].kind != LineKind::Text || lines_[i - 1].kind != LineKind::Option) continue;
      const TextSpan options{lines_[block].span.begin, lines_[i - 1].span.end};
      if (LeadsToOption(Content(i), options.Of(text_))) answers.push_back(i);
    }
    constexpr std::size_t kFewest = 2;
    if (answers.size() < kFewest) return;
    std::map<std::u16string_view, std::size_t> labels;  ///< of the lines behind the answers
    for (const std::size_t answer : answers) {
      for (std::size_t i = answer + 1; IsFurtherLine(i); ++i) ++labels[ColonLabel(Content(i))];
    }
    for (const std::size_t answer : answers) {
      lines_[answer].kind = LineKind::Answer;
      for (std::size_t i = answer + 1; IsFurtherLine(i); ++i) {
        if (labels[ColonLabel(Content(i))] >= kFewest) lines_[i].kind = LineKind::Answer;
      }
    }
  }

  std::u16string_view Content(std::size_t line) const { return Trimmed(text_, lines_[line].span).Of(text_); }

  /// A line with a label that no options follow.
  bool IsFurtherLine(std::size_t line) const {
    return line + 1 < lines_.size() && lines_[line].kind == LineKind::Text &&
           lines_[line + 1].kind != LineKind::Option && !ColonLabel(Content(line)).empty();
  }

  static std::u16string_view ColonLabel(std::u16string_view line) {
    constexpr std::size_t kLongest = 30;
    const std::size_t colon = line.substr(0, kLongest).find_first_of(u":：");
    return colon == line.npos ? std::u16string_view() : line.substr(0, colon);
  }

  /// "Answer: B", "答案 C", "Respuesta: the text of an option".
  static bool LeadsToOption(std::u16string_view line, std::u16string_view options) {
    constexpr std::size_t kLongestKey = 8;
    const std::size_t label = ColonLabel(line).size();
    const std::size_t lead = std::max(AnswerLeadSize(line), label > 0 ? label + 1 : 0);
    if (lead == 0 || lead >= line.size()) return false;
    const std::u16string_view rest = Trimmed(line, {lead, line.size()}).Of(line);
    if (rest.empty()) return false;
    if (label > 0 && AnswerLeadSize(line) > label) return true;
    if (rest.size() > kLongestKey) return options.find(rest) != options.npos;
    const LineWords words(rest);
    return std::ranges::all_of(words.Words(), [](const std::u16string& word) { return word.size() == 1; }) ||
           options.find(rest) != options.npos;
  }

  /// For each style the lines that begin with its first label.
  std::map<LabelStyle, std::vector<std::size_t>> FirstLabels() const {
    std::map<LabelStyle, std::vector<std::size_t>> starts;
    for (std::size_t i = 0; i < lines_.size(); ++i) {
      const auto label = LineLabelOf(text_, lines_[i].span);
      if (!label) continue;
      const char16_t close = label->close.IsEmpty() ? u'\0' : text_[label->close.begin];
      for (const AlphabetLabel& one :
           AlphabetLabelsAt(text_.substr(0, label->letter.end), label->letter.begin)) {
        const bool isFirst = one.letter.index == 0 && one.size == label->letter.Size();
        if (isFirst) starts[{one.letter.alphabet, label->open, close}].push_back(i);
      }
    }
    return starts;
  }

  void MarkOptions() {
    constexpr std::size_t kMostStyles = 4;  // each of them is searched for in the whole text
    std::vector<std::pair<LabelStyle, std::vector<std::size_t>>> styles;
    for (auto& style : FirstLabels()) styles.emplace_back(style);
    std::ranges::stable_sort(styles, std::greater<>(), [](const auto& style) { return style.second.size(); });
    styles.resize(std::min(styles.size(), kMostStyles));
    Blocks best;
    for (const auto& [style, starts] : styles) {
      if (starts.size() <= best.size()) break;
      Blocks blocks = BlocksOf(style, starts);
      if (blocks.size() > best.size()) best = std::move(blocks);
    }
    if (best.size() < 2) best = BulletBlocks();
    for (const TextSpan& block : best) {
      for (std::size_t i = block.begin; i < block.end; ++i) lines_[i].kind = LineKind::Option;
    }
  }

  /// Lines with bullets, two or more in a row.
  Blocks BulletBlocks() const {
    Blocks blocks;
    for (std::size_t i = 0; i < lines_.size(); ++i) {
      const std::size_t begin = i;
      while (i < lines_.size() && BulletSize(Trimmed(text_, lines_[i].span).Of(text_)) > 0) ++i;
      if (i - begin > 1) blocks.push_back({begin, i});
    }
    return blocks;
  }

  Blocks BlocksOf(const LabelStyle& style, const std::vector<std::size_t>& starts) const {
    Blocks blocks;
    for (std::size_t i = 0; i < starts.size(); ++i) {
      const std::size_t begin = lines_[starts[i]].span.begin;
      const std::size_t end = i + 1 < starts.size() ? lines_[starts[i + 1]].span.begin : within_.end;
      for (const OptionSequence& run : FindOptionRuns(text_, {begin, end})) {
        const bool startsHere = LineAt(run.labels.front().label.begin) == starts[i];
        if (run.alphabet != style.alphabet || !startsHere) continue;
        blocks.push_back({starts[i], LineAt(run.labels.back().label.begin) + 1});
        break;
      }
    }
    return blocks;
  }

  std::u16string_view text_;
  TextSpan within_;
  std::vector<ClassifiedLine> lines_;
};

}  // namespace

std::vector<ClassifiedLine> ClassifiedLines(std::u16string_view text, TextSpan within,
                                            const PreparationContext& context) {
  return LineClassification(text, within).Classify(context);
}

}  // namespace quorvantis
