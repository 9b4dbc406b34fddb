// SPDX-License-Identifier: MIT
#include "versions/verify/PaperComparison.h"

#include "model/AnswerLetters.h"
#include "model/QuestionKinds.h"
#include "platform/texts/VersionTexts.h"
#include "render/sheets/KeyTable.h"
#include "text/AsciiCase.h"
#include "text/ComparableText.h"
#include "text/MessageText.h"
#include "text/NumberText.h"
#include "versions/verify/ReadableBack.h"
#include "versions/verify/VisibleText.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>

namespace quorvantis {
namespace {

constexpr char16_t kRightSign = u'\u2713';

/// Looks for what should be printed, in order.
class PrintedText {
 public:
  explicit PrintedText(std::u16string text) : text_(std::move(text)) {}

  /// Whether the text comes next somewhere, after what was found before.
  bool Find(std::u16string_view wanted) {
    const std::u16string comparable = ComparableText(wanted);
    const std::size_t found = text_.find(comparable, at_);
    if (found == text_.npos) return FindScattered(wanted);
    at_ = found + comparable.size();
    isMarked_ = found > 0 && text_[found - 1] == kRightSign;
    return true;
  }

  /// How far it has looked.
  std::size_t Place() const { return at_; }
  void GoBackTo(std::size_t place) { at_ = place; }

  /// Whether the sign of a right option stands before what was found last.
  bool IsMarked() const { return isMarked_; }

 private:
  /// Where a text runs from right to left, a line may have been read in another order: then each of its words
  /// and numbers must stand near.
  bool FindScattered(std::u16string_view wanted) {
    constexpr std::size_t kNear = 400;
    if (std::ranges::none_of(wanted, IsRightToLeft)) return false;
    const std::size_t begin = at_ - std::min(at_, kNear);
    const std::u16string_view near = std::u16string_view(text_).substr(begin, 2 * kNear + 2 * wanted.size());
    std::size_t furthest = at_;
    while (!wanted.empty()) {
      const std::u16string word = ComparableText(TakeWord(wanted));
      if (std::ranges::any_of(word, IsPointing)) {
        if (!HasLettersOf(word, near)) return false;
        continue;
      }
      const std::size_t found = near.find(word);
      if (found == near.npos) return false;
      furthest = std::max(furthest, begin + found);
    }
    at_ = furthest;
    isMarked_ = false;
    return true;
  }

  /// Vowels and other marks of Hebrew and Arabic letters.
  static bool IsPointing(char16_t unit) {
    return (unit >= 0x0591 && unit <= 0x05C7 && unit != 0x05BE && unit != 0x05C0 && unit != 0x05C3) ||
           (unit >= 0x0610 && unit <= 0x061A) || (unit >= 0x064B && unit <= 0x065F) || unit == 0x0670 ||
           (unit >= 0x06D6 && unit <= 0x06ED);
  }

  /// Marks are printed by themselves and cut a word into pieces, which change places when it is read: then
  /// the same letters must stand together.
  static bool HasLettersOf(std::u16string_view word, std::u16string_view text) {
    const auto lettersOf = [](std::u16string_view pointed) {
      std::u16string letters(pointed);
      std::erase_if(letters, IsPointing);
      return letters;
    };
    std::u16string letters = lettersOf(word);
    const std::u16string near = lettersOf(text);
    std::ranges::sort(letters);
    for (std::size_t at = 0; at + letters.size() <= near.size(); ++at) {
      std::u16string there = near.substr(at, letters.size());
      std::ranges::sort(there);
      if (there == letters) return true;
    }
    return false;
  }

  static bool IsRightToLeft(char16_t unit) { return unit >= 0x590 && unit <= 0x8FF; }
  /// No mark that may stand at either end of a word.
  static bool IsOfWord(char16_t unit) {
    constexpr std::u16string_view kMarks = u"\u060C\u061B\u061F\u066A\u066B\u066C\u06D4";
    return IsDigit(unit) || AsciiUpper(unit) != AsciiLower(unit) ||
           (unit >= 0xC0 && (unit < 0x2000 || unit >= 0x3040) && kMarks.find(unit) == kMarks.npos);
  }

  /// The next letters or digits of one direction.
  static std::u16string_view TakeWord(std::u16string_view& text) {
    const auto* const begin = std::ranges::find_if(text, IsOfWord);
    const auto goesOn = [begin](char16_t unit) {
      return IsOfWord(unit) && IsRightToLeft(unit) == IsRightToLeft(*begin);
    };
    const auto* const end = std::find_if_not(begin, text.end(), goesOn);
    const std::u16string_view word(begin, static_cast<std::size_t>(end - begin));
    text.remove_prefix(static_cast<std::size_t>(end - text.begin()));
    return word;
  }

  std::u16string text_;
  std::size_t at_ = 0;
  bool isMarked_ = false;
};

/// The pages without the lines that have the code.
std::u16string WithoutFeet(const PdfPages& printed, std::u16string_view code) {
  std::u16string text;
  for (const std::u16string& page : printed.pages) {
    for (std::size_t at = 0; at < page.size();) {
      const std::size_t end = std::min(page.find(u'\n', at), page.size());
      const std::u16string_view line = std::u16string_view(page).substr(at, end - at);
      const bool isFoot = !code.empty() && line.find(code) != line.npos;
      if (!isFoot) text.append(line).append(u"\n");
      at = end + 1;
    }
  }
  return ComparableText(text);
}

/// Compares one sheet.
class SheetComparison {
 public:
  SheetComparison(const FrameSetExam& exam, Sheet sheet, std::u16string text)
      : exam_(exam), sheet_(sheet), printed_(std::move(text)) {}

  /// Empty if all of the question is printed, else what is not there. What is not compared for sure does not
  /// move the place from which the next question is looked for.
  std::u16string MissingOf(const KeyRow& key) {
    const std::size_t before = printed_.Place();
    std::u16string missing = MissingNow(key);
    if (!missing.empty() && !IsComparable(key)) printed_.GoBackTo(before);
    return missing;
  }

  /// Whether what is not found of a question is a fault.
  bool IsComparable(const KeyRow& key) const {
    if (!CanBeReadBack(key.key)) return false;
    if (sheet_ == Sheet::Key) return true;
    const ExamQuestion& question = exam_.Question(key.number);
    return CanBeReadBack(question.text) && std::ranges::all_of(question.options, CanBeReadBack);
  }

 private:
  std::u16string MissingNow(const KeyRow& key) {
    const std::u16string number = FormatInteger(key.number);
    if (sheet_ == Sheet::Key) return MissingKey(number, key);
    const ExamQuestion& question = exam_.Question(key.number);
    std::u16string missing = MissingText(number + u".", question.text);
    if (AnswerOf(key.kind).options) {
      for (std::size_t i = 0; i < kOptionCount && missing.empty(); ++i)
        missing = MissingOption(i, question.options[i], key.key);
    } else if (sheet_ == Sheet::Solutions && missing.empty()) {
      missing = MissingText({}, key.key);
    }
    return missing;
  }

  std::u16string MissingKey(const std::u16string& number, const KeyRow& key) {
    if (!key.key.empty() || !AnswerOf(key.kind).options) return MissingText(number, key.key);
    return MissingText(number, {});
  }

  /// The sign of a right option stands before its letter or, where letters come first, behind it.
  std::u16string MissingOption(std::size_t i, const std::u16string& option, std::u16string_view key) {
    if (option.empty()) return {};
    const std::u16string letter(1, OptionLetter(i));
    const bool isRight = sheet_ == Sheet::Solutions && key.find(letter) != key.npos;
    if (isRight && MissingText(kRightSign + letter, option).empty()) return {};
    const std::u16string missing = MissingText(isRight ? letter + kRightSign : letter, option);
    return missing.empty() && printed_.IsMarked() ? kRightSign + letter : missing;
  }

  /// The label directly before the first piece, then the others.
  std::u16string MissingText(const std::u16string& label, std::u16string_view markup) {
    std::vector<std::u16string> pieces = VisiblePieces(markup);
    if (pieces.empty()) pieces.emplace_back();
    pieces.front().insert(0, label + u" ");
    for (const std::u16string& piece : pieces) {
      if (!printed_.Find(piece)) return piece;
    }
    return {};
  }

  const FrameSetExam& exam_;
  Sheet sheet_;
  PrintedText printed_;
};

/// Blank pages, which make papers equally long, have at most their numbers.
bool HasOnEveryPage(const PdfPages& printed, std::u16string_view text) {
  const std::u16string wanted = ComparableText(text);
  return std::ranges::all_of(printed.pages, [&wanted](const std::u16string& page) {
    const std::u16string shown = ComparableText(page);
    const bool isBlank = shown.find_first_not_of(u"0123456789/") == shown.npos;
    return isBlank || shown.find(wanted) != shown.npos;
  });
}

}  // namespace

PaperDifferences ComparePaper(const FrameSetExam& exam, Sheet sheet, const SheetHead& head,
                              const PdfPages& printed, const StringTable& strings) {
  if (printed.problem || printed.pages.empty()) return {{strings.Text(text_id::kPdfUnreadable)}, {}};
  PaperDifferences found;
  if (!HasOnEveryPage(printed, head.code) || !HasOnEveryPage(printed, head.versionName))
    found.faults.push_back(
        FillMessage(strings.Text(text_id::kPaperLacksCode), {head.versionName, head.code}));
  if (sheet == Sheet::Answers) return found;
  SheetComparison comparison(exam, sheet, WithoutFeet(printed, head.code));
  for (const KeyRow& key : KeyTable(exam)) {
    const std::u16string missing = comparison.MissingOf(key);
    if (missing.empty()) continue;
    if (!comparison.IsComparable(key))
      found.notCompared.push_back(key.number);
    else
      found.faults.push_back(
          FillMessage(strings.Text(text_id::kPaperLacksText), {FormatInteger(key.number), missing}));
  }
  return found;
}

}  // namespace quorvantis
