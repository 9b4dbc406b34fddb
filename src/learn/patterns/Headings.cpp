// SPDX-License-Identifier: MIT
#include "learn/patterns/Headings.h"

#include "import/keys/FrontInstructions.h"
#include "import/labels/LineText.h"
#include "import/paper/PreparedLabels.h"
#include "learn/patterns/NumberFamilies.h"
#include "learn/patterns/PatternText.h"
#include "platform/WordContent.h"
#include "text/AsciiCase.h"

#include <algorithm>
#include <optional>

namespace quorvantis {
namespace {

/// Words that begin the headings of sections, in small letters.
constexpr std::u16string_view kSectionWords[] = {
    u"part",    u"section", u"teil",     u"abschnitt", u"partie",   u"exercice", u"exercise", u"parte",
    u"sección", u"seção",   u"sezione",  u"deel",      u"część",    u"bölüm",    u"bagian",   u"phần",
    u"часть",   u"раздел",  u"блок",     u"частина",   u"розділ",   u"μέρος",    u"ομάδα",    u"القسم",
    u"الجزء",   u"أولا",    u"ثانيا",    u"ثالثا",     u"חלק",      u"भाग",      u"खंड",       u"खण्ड",
    u"ตอนที่",    u"ส่วนที่",    u"第一部分", u"第二部分",  u"第三部分", u"第i卷",    u"第一节",   u"第二节",
    u"第1部",   u"大問",    u"[問",
};

/// Units of points behind a number.
constexpr std::u16string_view kPointWords[] = {
    u"point",  u"mark",  u"pts",   u"分",   u"点",   u"점",    u"punkt", u"puntos",
    u"ponto",  u"punti", u"балл",  u"бал",  u"điểm", u"puan",  u"درجة",  u"درجات",
    u"נקודות", u"अंक",    u"คะแนน", u"poin", u"pkt",  u"μονάδ",
};

/// Letters of the scripts that have capitals, in small; others as they are.
char16_t Small(char16_t unit) {
  if (unit >= u'А' && unit <= u'Я') return static_cast<char16_t>(unit + 0x20);
  if (unit >= u'Α' && unit <= u'Ω') return static_cast<char16_t>(unit + 0x20);
  if (unit >= 0xC0 && unit <= 0xDE && unit != 0xD7) return static_cast<char16_t>(unit + 0x20);
  return AsciiLower(unit);
}

std::u16string SmallText(std::u16string_view text) {
  std::u16string small(text);
  std::ranges::transform(small, small.begin(), Small);
  return small;
}

/// The length of the word for a section that the line begins with; 0 for none.
std::size_t SectionWord(std::u16string_view line) {
  const std::u16string small = SmallText(line.substr(0, 16));
  for (const std::u16string_view word : kSectionWords) {
    if (!small.starts_with(word)) continue;
    const bool isWhole = word.size() == line.size() || IsBlank(line[word.size()]) || word.back() > 0x2000 ||
                         line[word.size()] == u':' ||
                         (line[word.size()] >= u'0' && line[word.size()] <= u'9');
    if (isWhole) return word.size();
  }
  return 0;
}

bool TellsPoints(std::u16string_view line) {
  const std::u16string small = SmallText(line);
  for (const std::u16string_view word : kPointWords) {
    for (std::size_t at = small.find(word); at != small.npos; at = small.find(word, at + 1)) {
      const std::size_t before = small.find_last_not_of(kBlanks, at == 0 ? 0 : at - 1);
      if (at > 0 && before != small.npos && small[before] >= u'0' && small[before] <= u'9') return true;
    }
  }
  return false;
}

bool IsAllCapitals(std::u16string_view line) {
  std::size_t capitals = 0;
  for (const char16_t unit : line) {
    if (unit != Small(unit)) ++capitals;
    const bool isSmall = (unit >= u'a' && unit <= u'z') || (unit >= u'а' && unit <= u'я') || unit >= 0x0590;
    if (isSmall) return false;
  }
  constexpr std::size_t kEnough = 4;
  return capitals >= kEnough;
}

/// A number of another kind than questions have: "II.", "三、".
std::optional<NumberLabel> SectionNumber(std::u16string_view line) {
  for (const NumberLabel& label : NumberLabelsAt(line, {0, line.size()})) {
    // "(C)" is a key rather than a hundred.
    constexpr int kMostSections = 20;
    const bool isSection = label.kind == NumeralKind::UpperRoman || label.kind == NumeralKind::Chinese;
    if (isSection && label.value <= kMostSections && label.prefix.empty() && !label.isSpaced) return label;
  }
  return std::nullopt;
}

/// The lines behind the last option, or the answer, of one question.
class TailReading {
 public:
  /// `next`: the label of the next question, if there is one.
  TailReading(const PaperText& text, const OutlinedQuestion& question, TextSpan next)
      : text_(text), characters_(text.characters), question_(question), next_(Trimmed(characters_, next)) {}

  std::vector<HeadingLine> Headings() const {
    std::vector<HeadingLine> found;
    bool isBehind = false;
    for (const TextSpan& whole : LinesOf(characters_, {TailBegin(), TailEnd()})) {
      const TextSpan line = Trimmed(characters_, whole);
      if (line.IsEmpty()) continue;
      isBehind = isBehind || IsHeading(line);
      // Instructions below a heading go with it; a long text is a passage to read.
      constexpr std::size_t kLongestInstruction = 160;
      if (isBehind && line.Size() <= kLongestInstruction)
        found.push_back({line, HeadingPattern(line.Of(characters_))});
    }
    return found;
  }

 private:
  std::size_t TailBegin() const {
    std::size_t begin = question_.label.end;
    if (!question_.answer.IsEmpty() && !IsPreparedKey()) {
      begin = std::max(begin, question_.answer.begin);
    } else if (question_.options) {
      begin = question_.options->labels.back().text.begin;
    }
    return LineEndAfter(characters_, begin);
  }

  bool IsPreparedKey() const {
    return question_.answerLabel.Of(characters_).find(kPreparedKey) != std::u16string_view::npos;
  }

  /// An answer that a step has put in ends the question.
  std::size_t TailEnd() const {
    const bool isAtEnd = question_.answer.IsEmpty() || IsPreparedKey();
    return std::max(isAtEnd ? question_.answerLabel.begin : question_.whole.end, TailBegin());
  }

  bool IsHeading(TextSpan span) const {
    const std::u16string_view line = span.Of(characters_);
    constexpr std::size_t kLongestHeading = 120;
    if (line.size() > kLongestHeading) return false;
    return SectionWord(line) > 0 || SectionNumber(line).has_value() || TellsPoints(line) ||
           IsAllCapitals(line) || IsSectionOfNext(line) || IsEmphasised(span);
  }

  /// "2.2 Energy" before question 2.2.1.
  bool IsSectionOfNext(std::u16string_view line) const {
    const SectionedNumeral section = SectionedNumeralAt(line, 0);
    if (section.value == 0 || section.end >= line.size()) return false;
    if (!IsBlank(line[section.end]) && line[section.end] != u'.') return false;
    return next_.Of(characters_).starts_with(std::u16string(line.substr(0, section.end)) + u".");
  }

  bool IsEmphasised(TextSpan span) const {
    constexpr std::uint8_t kOfHeadings = emphasis::kBold | emphasis::kUnderlined;
    for (std::size_t at = span.begin; at < span.end; ++at) {
      if (!IsBlank(characters_[at]) && (text_.emphasis[at] & kOfHeadings) == 0) return false;
    }
    return true;
  }

  const PaperText& text_;
  std::u16string_view characters_;
  const OutlinedQuestion& question_;
  TextSpan next_;
};

/// A line that begins like this one: short, for many of them must fit one rule.
std::u16string BeginningPattern(std::u16string_view line) {
  constexpr std::size_t kEnough = 20;
  if (line.size() <= kEnough) return LiteralPattern(line) + u"[ \\t\u3000]*$";
  return LiteralPattern(line.substr(0, kEnough)) + u"[^\\r\\n\\v]*$";
}

}  // namespace

std::vector<HeadingLine> FindHeadings(const PaperText& text, const PaperOutline& outline) {
  std::vector<HeadingLine> found;
  const auto& questions = outline.questions;
  for (std::size_t i = 0; i < questions.size(); ++i) {
    const TextSpan next = i + 1 < questions.size() ? questions[i + 1].label : TextSpan{};
    for (HeadingLine& line : TailReading(text, questions[i], next).Headings())
      found.push_back(std::move(line));
  }
  return found;
}

std::vector<HeadingLine> FindNumberedInstructions(const PaperText& text, const PaperOutline& outline,
                                                  bool areMarked) {
  const std::u16string_view characters = text.characters;
  std::vector<HeadingLine> found;
  const std::size_t count = NumberedInFront(characters, outline);
  if (count == 0) return found;
  if (!areMarked && !AnnouncesInstructions(outline.front.Of(characters))) return found;
  for (std::size_t i = 0; i < count; ++i) {
    const TextSpan whole = Trimmed(characters, outline.questions[i].whole);
    for (const TextSpan& line : LinesOf(characters, whole)) {
      const TextSpan content = Trimmed(characters, line);
      // What a blank line sets off behind the last one belongs to the exam.
      if (content.IsEmpty()) break;
      if (characters[content.begin] == kPreparedOpen) continue;
      found.push_back({content, BeginningPattern(content.Of(characters))});
    }
  }
  return found;
}

std::u16string HeadingPattern(std::u16string_view line) {
  constexpr std::u16string_view kRest = u"[^\\r\\n\\v!]*";
  if (const std::size_t word = SectionWord(line); word > 0)
    return u"(?i:" + LiteralPattern(line.substr(0, word)) + u")(?![a-z])" + std::u16string(kRest);
  if (const auto label = SectionNumber(line)) {
    std::u16string pattern = NumeralPattern(label->kind);
    if (label->open != 0) pattern = LiteralPattern(std::u16string(1, label->open)) + pattern;
    return pattern + LiteralPattern(label->close) + std::u16string(kRest);
  }
  return LiteralPattern(line) + u"[ \\t\u3000]*$";
}

}  // namespace quorvantis
