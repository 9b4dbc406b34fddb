// SPDX-License-Identifier: MIT
// A parser by recursive descent: alternation, sequence, quantified element, element. Character
// classes and escapes have files of their own.
#include "regex/RegexParser.h"

#include "regex/ClassParser.h"
#include "regex/EscapeParser.h"
#include "regex/NestedRepeats.h"
#include "regex/QuotedText.h"
#include "regex/RegexFlags.h"
#include "text/AsciiCase.h"

#include <algorithm>
#include <map>
#include <optional>

namespace quorvantis {
namespace {

constexpr int kMostNestedGroups = 250;
constexpr int kLargestCount = 65535;
constexpr int kLargestGroup = 65535;

bool IsOneOf(char16_t unit, std::u16string_view units) {
  return units.find(unit) != std::u16string_view::npos;
}

class RegexParser {
 public:
  RegexParser(std::u16string_view pattern, int flags) : cursor_(pattern), flags_(flags) {}

  ParsedPattern Parse() {
    result_.tree = ParseAlternation();
    if (!cursor_.AtEnd()) cursor_.Fail("a ) without its (");
    return std::move(result_);
  }

 private:
  bool Has(int flag) const { return (flags_ & flag) != 0; }

  // --- alternation, sequence, quantifiers ---

  /// Up to a ")" or the end. Inline flags in it hold to its end.
  SyntaxTree ParseAlternation() {
    const int outerFlags = flags_;
    if (++depth_ > kMostNestedGroups) cursor_.Fail("groups are nested too deeply");
    std::vector<SyntaxTree> choices;
    do {
      choices.push_back(ParseSequence());
    } while (cursor_.Take(u"|"));
    --depth_;
    flags_ = outerFlags;
    if (choices.size() == 1) return std::move(choices.front());
    return MakeTree(AlternationNode{std::move(choices)});
  }

  SyntaxTree ParseSequence() {
    std::vector<SyntaxTree> parts;
    while (SkipToElement()) {
      SyntaxTree element = ParseElement();
      if (!element) continue;
      while (SkipToMeaning(), TakeQuantifier(element)) {
      }
      parts.push_back(std::move(element));
    }
    return MakeTree(SequenceNode{std::move(parts)});
  }

  /// Whether another element of the sequence follows.
  bool SkipToElement() {
    SkipToMeaning();
    if (cursor_.AtEnd()) return false;
    return quoted_.IsOn() || (!cursor_.LooksAt(u"|") && !cursor_.LooksAt(u")"));
  }

  /// Skips everything without a meaning of its own, in any order: quotation marks, and comments outside them.
  void SkipToMeaning() {
    while (quoted_.TakeMark(cursor_) || (!quoted_.IsOn() && TakeComment())) {
    }
  }

  /// A comment, or in extended mode white space or a comment to the end of the line, if one comes next.
  bool TakeComment() {
    if (cursor_.Take(u"(?#")) {
      if (!cursor_.TakeUntil(u")")) cursor_.Fail("the comment is not closed by )");
      return true;
    }
    if (!Has(regex_flag::kExtended) || cursor_.AtEnd()) return false;
    if (cursor_.Take(u"#")) {
      while (!cursor_.AtEnd() && cursor_.Next() != u'\n') {
      }
      return true;
    }
    const bool isSpace = IsOneOf(cursor_.Peek(), u"\t\n\v\f\r ");
    if (isSpace) cursor_.Next();
    return isSpace;
  }

  struct Counts {
    int min;
    int max;
  };

  /// Wraps `element` if a quantifier comes next.
  bool TakeQuantifier(SyntaxTree& element) {
    if (quoted_.IsOn()) return false;
    const std::optional<Counts> counts = TakeCounts();
    if (!counts) return false;
    RepeatMode mode = TakeMode();
    if (counts->min == counts->max) mode = RepeatMode::Greedy;  // after a fixed count, both change nothing
    RepeatNode repeat{counts->min, counts->max, mode, std::move(element)};
    MergeNestedRepeat(repeat);
    element = MakeTree(std::move(repeat));
    return true;
  }

  /// What follows the counts, possibly after a comment.
  RepeatMode TakeMode() {
    SkipToMeaning();
    if (quoted_.IsOn()) return RepeatMode::Greedy;
    if (cursor_.Take(u"?")) return RepeatMode::Lazy;
    return cursor_.Take(u"+") ? RepeatMode::Possessive : RepeatMode::Greedy;
  }

  std::optional<Counts> TakeCounts() {
    if (cursor_.Take(u"*")) return Counts{0, kUnlimited};
    if (cursor_.Take(u"+")) return Counts{1, kUnlimited};
    if (cursor_.Take(u"?")) return Counts{0, 1};
    return TakeBracedCounts();
  }

  /// "{n}", "{n,}" or "{n,m}"; any other "{" is an ordinary unit.
  std::optional<Counts> TakeBracedCounts() {
    const std::size_t place = cursor_.Position();
    if (!cursor_.Take(u"{")) return std::nullopt;
    const std::optional<int> min = cursor_.TakeNumber(kLargestCount);
    std::optional<int> max = min;
    if (min && cursor_.Take(u",")) max = cursor_.TakeNumber(kLargestCount).value_or(kUnlimited);
    if (!min || !cursor_.Take(u"}")) {
      cursor_.MoveTo(place);
      return std::nullopt;
    }
    if (*max != kUnlimited && *max < *min)
      PatternCursor::FailAt(place, "the largest count is below the smallest");
    return Counts{*min, *max};
  }

  // --- elements ---

  /// Null for inline flags, which are not an element.
  SyntaxTree ParseElement() {
    if (quoted_.IsOn()) return Literal(quoted_.Next(cursor_));
    if (cursor_.Take(u"(")) return ParseGroup();
    const std::size_t place = cursor_.Position();
    const char16_t unit = cursor_.Next();
    switch (unit) {
      case u'\\':
        return ParseEscape();
      case u'[':
        return Unit(ParseClass(cursor_, Has(regex_flag::kIgnoreCase)));
      case u'.':
        return AnyUnit();
      case u'^':
        return Assertion(Has(regex_flag::kMultiLine) ? AssertionKind::LineStart : AssertionKind::StartOfText);
      case u'$':
        return Assertion(Has(regex_flag::kMultiLine) ? AssertionKind::LineEnd : AssertionKind::EndOfText);
      case u'*':
      case u'+':
      case u'?':
        PatternCursor::FailAt(place, "nothing stands before the quantifier");
      default:
        break;
    }
    cursor_.MoveTo(place);
    if (TakeBracedCounts()) PatternCursor::FailAt(place, "nothing stands before the quantifier");
    return Literal(cursor_.Next());
  }

  SyntaxTree Unit(const CharacterSet& set) {
    for (const auto& known : sets_) {
      if (*known == set) return MakeTree(UnitNode{known});
    }
    sets_.push_back(std::make_shared<const CharacterSet>(set));
    return MakeTree(UnitNode{sets_.back()});
  }

  SyntaxTree Literal(char16_t unit) {
    auto& known = literals_[{unit, Has(regex_flag::kIgnoreCase)}];
    if (!known) {
      CharacterSet set;
      set.Add(unit);
      if (Has(regex_flag::kIgnoreCase)) set.CloseUnderCase();
      known = std::make_shared<const CharacterSet>(std::move(set));
    }
    return MakeTree(UnitNode{known});
  }

  SyntaxTree AnyUnit() {
    CharacterSet set = CharacterSet::All();
    if (!Has(regex_flag::kSingleLine)) set.Remove(u'\n');
    return Unit(set);
  }

  static SyntaxTree Assertion(AssertionKind kind) { return MakeTree(AssertionNode{kind}); }

  SyntaxTree ParseEscape() {
    if (cursor_.AtEnd()) cursor_.Fail("a backslash at the end");
    const std::size_t place = cursor_.Position() - 1;
    const char16_t letter = cursor_.Next();
    switch (letter) {
      case u'b':
        return Assertion(AssertionKind::WordBoundary);
      case u'B':
        return Assertion(AssertionKind::NoWordBoundary);
      case u'A':
        return Assertion(AssertionKind::StartOfText);
      case u'z':
        return Assertion(AssertionKind::EndOfText);
      case u'Z':
        return Assertion(AssertionKind::EndOfTextOrLastBreak);
      case u'G':
        return Has(regex_flag::kGlobal) ? Assertion(AssertionKind::PreviousEnd) : Literal(u'G');
      case u'g':
      case u'k':
        return ParseNamedReference(place);
      default:
        break;
    }
    if (letter >= u'1' && letter <= u'9') return BackReference({{}, letter - u'0', place});
    if (const std::optional<CharacterSet> set = ClassEscape(letter)) return Unit(*set);
    return Literal(UnitEscape(letter, cursor_));
  }

  SyntaxTree BackReference(GroupPlace place) {
    return MakeTree(BackReferenceNode{std::move(place), Has(regex_flag::kIgnoreCase)});
  }

  /// After "\g" or "\k": a name or number in braces, quotes or angle brackets, or a bare number.
  SyntaxTree ParseNamedReference(std::size_t place) {
    std::optional<std::u16string_view> name;
    if (cursor_.Take(u"{")) {
      name = cursor_.TakeUntil(u"}");
    } else if (cursor_.Take(u"<")) {
      name = cursor_.TakeUntil(u">");
    } else if (cursor_.Take(u"'")) {
      name = cursor_.TakeUntil(u"'");
    } else if (const std::optional<int> number = cursor_.TakeNumber(kLargestGroup)) {
      return BackReference({{}, *number, place});
    }
    if (!name || name->empty()) PatternCursor::FailAt(place, "the reference names no group");
    return BackReference(PlaceOf(*name, place));
  }

  /// A group by number ("2", or "-1" for the last one before this place) or by name.
  GroupPlace PlaceOf(std::u16string_view text, std::size_t place) const {
    PatternCursor digits(text);
    const bool relative = digits.Take(u"-");
    const std::optional<int> number = digits.TakeNumber(kLargestGroup);
    if (!number || !digits.AtEnd()) return {std::u16string(text), 0, place};
    return {{}, relative ? result_.groupCount + 1 - *number : *number, place};
  }

  // --- groups, after their "(" ---

  SyntaxTree ParseGroup() {
    const std::size_t place = cursor_.Position() - 1;
    if (!cursor_.Take(u"?")) return Capture({}, place);
    if (cursor_.Take(u":")) return Closed(ParseAlternation(), place);
    if (cursor_.Take(u">")) return MakeTree(AtomicNode{Closed(ParseAlternation(), place)});
    if (SyntaxTree look = TakeLookAround(place)) return look;
    if (cursor_.Take(u"P<") || cursor_.Take(u"<")) return Capture(GroupName(u">"), place);
    if (cursor_.Take(u"'")) return Capture(GroupName(u"'"), place);
    if (cursor_.Take(u"(")) return ParseCondition(place);
    if (cursor_.Take(u"R")) return Recursion(0, place);
    if (const std::optional<int> group = cursor_.TakeNumber(kLargestGroup)) return Recursion(*group, place);
    return ParseInlineFlags(place);
  }

  SyntaxTree Closed(SyntaxTree body, std::size_t place) {
    if (!cursor_.Take(u")")) PatternCursor::FailAt(place, "the group is not closed by )");
    return body;
  }

  SyntaxTree Capture(std::u16string_view name, std::size_t place) {
    const int group = ++result_.groupCount;
    if (!name.empty()) result_.names.emplace_back(name, group);
    return MakeTree(CaptureNode{group, Closed(ParseAlternation(), place)});
  }

  std::u16string_view GroupName(std::u16string_view end) {
    const std::size_t place = cursor_.Position();
    const std::optional<std::u16string_view> name = cursor_.TakeUntil(end);
    if (!name || name->empty() || name->find_first_of(u"()") != std::u16string_view::npos) {
      PatternCursor::FailAt(place, "the group has no name");
    }
    return *name;
  }

  SyntaxTree TakeLookAround(std::size_t place) {
    const bool behind = cursor_.LooksAt(u"<=") || cursor_.LooksAt(u"<!");
    if (behind) cursor_.Next();
    if (!cursor_.LooksAt(u"=") && !cursor_.LooksAt(u"!")) return nullptr;
    const bool negative = cursor_.Next() == u'!';
    return MakeTree(LookNode{behind, negative, Closed(ParseAlternation(), place)});
  }

  SyntaxTree Recursion(int group, std::size_t place) {
    return Closed(MakeTree(RecursionNode{{{}, group, place}}), place);
  }

  /// After "(?(": a group or a look-around, then one or two choices.
  SyntaxTree ParseCondition(std::size_t place) {
    ConditionNode condition;
    if (cursor_.Take(u"?")) {
      condition.look = TakeLookAround(place);
      if (!condition.look) PatternCursor::FailAt(place, "the condition is neither a group nor a look-around");
    } else {
      condition.place = ConditionGroup(place);
    }
    const int outerFlags = flags_;
    condition.whenTrue = ParseSequence();
    condition.whenFalse = cursor_.Take(u"|") ? ParseSequence() : MakeTree(SequenceNode{});
    flags_ = outerFlags;
    if (cursor_.LooksAt(u"|")) cursor_.Fail("a condition has two choices at most");
    return Closed(MakeTree(std::move(condition)), place);
  }

  GroupPlace ConditionGroup(std::size_t place) {
    std::optional<std::u16string_view> name;
    if (cursor_.Take(u"<")) {
      name = cursor_.TakeUntil(u">)");
    } else if (cursor_.Take(u"'")) {
      name = cursor_.TakeUntil(u"')");
    } else {
      name = cursor_.TakeUntil(u")");
    }
    if (!name || name->empty()) PatternCursor::FailAt(place, "the condition names no group");
    return PlaceOf(*name, place);
  }

  /// After "(?": letters that switch flags on, and off after "-"; then ")" for the rest of the enclosing
  /// group, or ":" and a group of its own.
  SyntaxTree ParseInlineFlags(std::size_t place) {
    const int outerFlags = flags_;
    bool on = true;
    while (!cursor_.AtEnd() && !IsOneOf(cursor_.Peek(), u":)")) {
      const char16_t letter = cursor_.Next();
      if (letter == u'-') {
        on = false;
        continue;
      }
      const int flag = InlineFlag(letter);
      if (flag == 0) PatternCursor::FailAt(place, "nothing known begins with (? and this letter");
      flags_ = on ? flags_ | flag : flags_ & ~flag;
    }
    if (cursor_.Take(u")")) return nullptr;
    if (!cursor_.Take(u":")) PatternCursor::FailAt(place, "the group is not closed by )");
    SyntaxTree body = Closed(ParseAlternation(), place);
    flags_ = outerFlags;
    return body;
  }

  PatternCursor cursor_;
  int flags_;
  int depth_ = 0;
  QuotedText quoted_;
  ParsedPattern result_;
  std::vector<std::shared_ptr<const CharacterSet>> sets_;
  std::map<std::pair<char16_t, bool>, std::shared_ptr<const CharacterSet>> literals_;
};

}  // namespace

ParsedPattern ParseRegex(std::u16string_view pattern, int flags) {
  return RegexParser(pattern, flags).Parse();
}

int FindGroup(const GroupNames& names, std::u16string_view name) {
  const auto isNamed = [name](const auto& group) { return EqualsIgnoringAsciiCase(group.first, name); };
  const auto found = std::ranges::find_if(names, isNamed);
  return found == names.end() ? 0 : found->second;
}

}  // namespace quorvantis
