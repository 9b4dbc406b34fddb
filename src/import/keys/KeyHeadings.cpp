// SPDX-License-Identifier: MIT
#include "import/keys/KeyHeadings.h"

#include "import/keys/KeyParts.h"
#include "import/keys/KeyReader.h"
#include "import/labels/LineText.h"
#include "import/lines/AnswerWords.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// Looks at all lines of a paper.
class HeadingSearch {
 public:
  HeadingSearch(std::u16string_view text, const PaperOutline& outline)
      : text_(text),
        outline_(outline),
        lines_(LinesOf(text, {0, text.size()})),
        titles_(PartTitlesOf(text, outline.questions)) {}

  std::vector<HeadingPlace> Headings() const {
    constexpr std::size_t kMostHeadings = 12;
    // Places to write answers on may look like headings: the last ones count as much as the first.
    constexpr std::size_t kMostFirst = kMostHeadings / 2;
    std::vector<HeadingPlace> headings;
    if (!outline_.answerSection.IsEmpty()) {
      const std::size_t begin = Trimmed(text_, outline_.answerSection).begin;
      headings.push_back({begin, LineEndAfter(text_, begin), AnswerHeading::Clear});
      headings.push_back({begin, begin, AnswerHeading::Clear});
    }
    if (outline_.questions.empty()) return headings;
    for (std::size_t i = 0; i < lines_.size(); ++i) {
      if (lines_[i].end <= outline_.questions.front().label.end) continue;
      HeadingPlace heading = HeadingOf(lines_[i]);
      if (heading.heading == AnswerHeading::None) heading = RepeatedTitle(lines_[i]);
      if (heading.heading == AnswerHeading::None || !IsKeyBehind(i, heading)) continue;
      if (i > 0 && IsSecondRow(i)) heading.begin = heading.end = Trimmed(text_, lines_[i - 1]).begin;
      if (headings.size() == kMostHeadings) headings.erase(headings.begin() + kMostFirst);
      headings.push_back(heading);
    }
    return headings;
  }

 private:
  /// A line that is a heading, or begins with one: "Answers: 1-5 ABCDA".
  HeadingPlace HeadingOf(TextSpan line) const {
    constexpr std::size_t kLongest = 80;
    const TextSpan trimmed = Trimmed(text_, line);
    const std::u16string_view whole = trimmed.Of(text_);
    if (whole.size() <= kLongest) {
      const AnswerHeading heading = AnswerHeadingOf(whole);
      if (heading == AnswerHeading::Clear) return {trimmed.begin, trimmed.end, heading};
      const bool isOwnAnswer = whole.find_first_of(u":：=") != whole.npos || HasOwnAnswer(trimmed);
      if (heading == AnswerHeading::Possible && !isOwnAnswer && EntriesOfLine(text_, line).empty())
        return {trimmed.begin, trimmed.end, heading};
    }
    const std::size_t colon = whole.substr(0, kLongest).find_first_of(u":： \u00A0\u3000\t1１");
    if (colon == whole.npos) return {};
    // The heading itself may have several words: "Answer key: 1. B".
    const std::size_t words = std::max(colon, whole.substr(0, kLongest).find_first_of(u":："));
    for (const std::size_t place : {colon, words == whole.npos ? colon : words}) {
      if (AnswerHeadingOf(whole.substr(0, place)) != AnswerHeading::Clear) continue;
      const std::size_t begin =
          trimmed.begin + place + (whole[place] == u'1' || whole[place] == u'１' ? 0 : 1);
      if (AreAnswers({begin, trimmed.end}) || IsOnlyBareKey(whole.substr(0, place), {begin, trimmed.end}))
        return {trimmed.begin, begin, AnswerHeading::Clear};
    }
    return {};
  }

  /// The title of a part that the paper has had: what follows may be the answers to it.
  HeadingPlace RepeatedTitle(TextSpan line) const {
    constexpr std::size_t kLongest = 40;
    const TextSpan title = Trimmed(text_, {line.begin, std::min(line.end, line.begin + kLongest)});
    if (titles_.empty() || !IsPartTitle(title.Of(text_))) return {};
    const PartName name = PartNameOf(title.Of(text_));
    const bool isAgain = std::ranges::any_of(titles_, [&](const PartTitle& other) {
      return outline_.questions[other.question].label.begin < line.begin && other.name.number > 0 &&
             other.name.number == name.number && other.name.before == name.before;
    });
    if (!isAgain) return {};
    return {title.begin, title.begin, AnswerHeading::Possible, true};
  }

  /// "Key  A  B  C" below "No.  1  2  3".
  bool IsSecondRow(std::size_t line) const {
    KeyLineReader reader(text_);
    return reader.Read(lines_[line - 1]).kind == KeyLineKind::NumberRow &&
           reader.Read(lines_[line]).kind == KeyLineKind::AnswerRow;
  }

  bool AreAnswers(TextSpan line) const {
    if (!EntriesOfLine(text_, line).empty()) return true;
    return TextEntriesOfLine(text_, line, true).size() > 1;
  }

  /// Whether letters without numbers follow a label that no other line begins with: "Key: BACD". The other
  /// lines would be answers of single questions.
  bool IsOnlyBareKey(std::u16string_view label, TextSpan letters) const {
    constexpr std::size_t kFewest = 3;
    if (ReadBareKey(text_, letters).size() < kFewest || HasOwnAnswer(letters)) return false;
    const auto hasLabel = [this, label](const TextSpan& line) {
      return Trimmed(text_, line).Of(text_).starts_with(label);
    };
    const auto first = std::ranges::find_if(lines_, hasLabel);
    return first != lines_.end() && std::find_if(first + 1, lines_.end(), hasLabel) == lines_.end();
  }

  /// Whether a rule has found a question's own answer in the line.
  bool HasOwnAnswer(TextSpan line) const {
    const auto after =
        std::ranges::upper_bound(outline_.questions, line.begin, {},
                                 [](const OutlinedQuestion& question) { return question.label.begin; });
    return after != outline_.questions.begin() && std::prev(after)->answer.Overlaps(line);
  }

  /// Whether the first lines behind a heading look like a key; saves reading to the end each time.
  bool IsKeyBehind(std::size_t line, const HeadingPlace& heading) const {
    constexpr std::size_t kMostLines = 8;
    if (heading.end < lines_[line].end && !Trimmed(text_, {heading.end, lines_[line].end}).IsEmpty())
      return true;
    constexpr std::size_t kLongestCaption = 30;
    KeyLineReader reader(text_);
    int captions = 2;  // of the columns of a table: "Question", "Answer"
    for (std::size_t i = line + 1; i < std::min(lines_.size(), line + 1 + kMostLines); ++i) {
      const KeyLineReading reading = reader.Read(lines_[i]);
      if (!reading.entries.empty()) return true;
      if (reading.kind != KeyLineKind::Text) continue;
      const TextSpan trimmed = Trimmed(text_, lines_[i]);
      const auto number = KeyNumberAt(text_, trimmed.begin, trimmed.end);
      if ((number && number->isSetOff) || !ReadBareKey(text_, trimmed).empty()) return true;
      if (captions-- == 0 || trimmed.Size() > kLongestCaption) return false;
    }
    return false;
  }

  std::u16string_view text_;
  const PaperOutline& outline_;
  std::vector<TextSpan> lines_;
  std::vector<PartTitle> titles_;
};

}  // namespace

std::vector<HeadingPlace> FindKeyHeadings(std::u16string_view text, const PaperOutline& outline) {
  return HeadingSearch(text, outline).Headings();
}

}  // namespace quorvantis
