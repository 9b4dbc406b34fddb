// SPDX-License-Identifier: MIT
#include "import/prepare/QuestionTails.h"

#include "import/labels/OptionSequence.h"
#include "import/marking/RuleKeys.h"
#include "import/prepare/LineBullet.h"
#include "import/prepare/LineLabel.h"
#include "import/prepare/PreparedLabels.h"
#include "import/prepare/RuleMatches.h"

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

  auto operator<=>(const LabelStyle&) const = default;
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

  /// For each style the lines that begin with its first label.
  std::map<LabelStyle, std::vector<std::size_t>> FirstLabels() const {
    std::map<LabelStyle, std::vector<std::size_t>> starts;
    for (std::size_t i = 0; i < lines_.size(); ++i) {
      const auto label = LineLabelOf(text_, lines_[i].span);
      if (!label) continue;
      const char16_t close = label->close.IsEmpty() ? u'\0' : text_[label->close.begin];
      for (const AlphabetLetter& letter : AlphabetLettersOf(text_[label->letter.begin])) {
        if (letter.index == 0) starts[{letter.alphabet, label->open, close}].push_back(i);
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
