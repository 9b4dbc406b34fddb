// SPDX-License-Identifier: MIT
#include "cli/papers/PrintedReading.h"

#include "import/labels/LineText.h"
#include "import/marking/RuleKeys.h"
#include "import/prepare/PreparationSteps.h"
#include "regex/RegexPattern.h"
#include "text/ControlCharacters.h"
#include "text/Utf.h"

#include <algorithm>
#include <map>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace quorvantis::cli {
namespace {

constexpr std::size_t kMostExamples = 2;
constexpr std::size_t kExampleUnits = 40;

/// A beginning without blanks at its ends, in one line.
std::string Excerpt(std::u16string_view text) {
  const TextSpan whole = Trimmed(text, {0, text.size()});
  std::u16string excerpt(whole.Of(text).substr(0, kExampleUnits));
  std::ranges::replace_if(
      excerpt, [](char16_t unit) { return IsControl(unit) || IsLineEnd(unit); }, u' ');
  return Utf16ToUtf8(excerpt) + (whole.Size() > kExampleUnits ? "..." : "");
}

/// What one rule has matched.
struct RuleMatches {
  std::size_t count = 0;
  std::vector<std::string> examples{};

  void Add(std::u16string_view example) {
    ++count;
    if (examples.size() < kMostExamples) examples.push_back(Excerpt(example));
  }
};

using AllMatches = std::map<std::u16string_view, RuleMatches>;

/// The parts of the paper that rules have replaced by markers or deleted.
AllMatches ReplacedMatches(const PaperStudy& study) {
  AllMatches all;
  const std::u16string& source = study.StudiedPaper().source.characters;
  for (const ReplacedMatch& match : study.Reading().marked.trace.replaced) {
    std::u16string text;
    for (const std::uint32_t place : match.units) text += source[place];
    all[match.key].Add(text);
  }
  return all;
}

/// Those of the rules that take apart what lies between the markers.
void AddParsed(const PaperStudy& study, AllMatches& all) {
  const ReadPaper& paper = study.Reading().paper;
  for (const ReadQuestion& question : paper.questions) {
    all[rule_key::kPattern].Add(question.text);
    const bool isTrueFalse = question.kind == ReadKind::TrueFalse;
    const bool isFromBlock = isTrueFalse ? paper.hasJudgementBlock : paper.hasChoiceBlock;
    const bool isChoice = isTrueFalse || question.kind == ReadKind::Choice;
    if (isFromBlock && isChoice && !question.key.empty())
      all[isTrueFalse ? rule_key::kJudgementAnswer : rule_key::kChoiceAnswer].Add(question.key);
  }
  all[rule_key::kChoiceAnswer].count = paper.choiceAnswers;
  all[rule_key::kJudgementAnswer].count = paper.judgementAnswers;
  all[rule_key::kChoiceAnswerPattern].count = paper.hasChoiceBlock ? 1 : 0;
  all[rule_key::kJudgementAnswerPattern].count = paper.hasJudgementBlock ? 1 : 0;
}

void PrintRule(std::ostream& out, std::u16string_view key, const RuleMatches& matches,
               const std::string& fault) {
  constexpr std::size_t kKeyWidth = 24;
  std::string line = Utf16ToUtf8(key);
  line.resize(std::max(kKeyWidth, line.size() + 1), ' ');
  const std::string count = std::to_string(matches.count);
  line += std::string(count.size() < 6 ? 6 - count.size() : 0, ' ') + count;
  for (const std::string& example : matches.examples) line += "  \"" + example + "\"";
  if (!fault.empty()) line += "  not a valid pattern: " + fault;
  out << line << "\n";
}

std::string FaultOf(const std::u16string& pattern) {
  const RegexPattern compiled(pattern, kRuleFlags);
  const auto& error = compiled.CompileError();
  return error ? error->reason + ", at " + std::to_string(error->position) : std::string();
}

}  // namespace

void PrintRuleMatches(std::ostream& out, const PaperStudy& study) {
  AllMatches all = ReplacedMatches(study);
  AddParsed(study, all);
  const ImportSettings& rules = study.Rules();
  if (!rules.prepare.empty()) PrintRule(out, rule_key::kPrepare, all[rule_key::kPrepare], {});
  for (const PatternRule& rule : kPatternRules) {
    const std::u16string& pattern = rules.*rule.pattern;
    if (!pattern.empty()) PrintRule(out, rule.key, all[rule.key], FaultOf(pattern));
  }
}

void PrintUntakenLines(std::ostream& out, const PaperStudy& study) {
  constexpr std::size_t kMostLines = 50;
  const std::u16string& text = study.StudiedPaper().source.characters;
  const std::vector<TextSpan> lines = LinesOf(text, {0, text.size()});
  std::size_t count = 0;
  std::size_t last = 0;  // the number of the line printed last
  auto line = lines.begin();
  for (const RolePart& part : study.Roles()) {
    if (part.role != PaperRole::None) continue;
    for (TextSpan rest = Trimmed(text, part.span); !rest.IsEmpty();) {
      while (line + 1 != lines.end() && (line + 1)->begin <= rest.begin) ++line;
      const auto number = static_cast<std::size_t>(line - lines.begin()) + 1;
      const TextSpan untaken{rest.begin, std::min(rest.end, std::max(line->end, rest.begin + 1))};
      if (std::exchange(last, number) != number && ++count <= kMostLines)
        out << "nothing takes line " << number << ": " << Excerpt(untaken.Of(text)) << "\n";
      rest = Trimmed(text, {untaken.end, rest.end});
    }
  }
  if (count > kMostLines) out << "and " << count - kMostLines << " more lines\n";
}

}  // namespace quorvantis::cli
