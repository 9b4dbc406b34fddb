// SPDX-License-Identifier: MIT
#include "versions/PaperComparison.h"

#include "model/AnswerLetters.h"
#include "model/QuestionKinds.h"
#include "platform/TextNumbers.h"
#include "render/sheets/KeyTable.h"
#include "text/ComparableText.h"
#include "text/MessageText.h"
#include "text/NumberText.h"
#include "versions/VisibleText.h"

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
    return true;
  }

 private:
  /// Where words run in both directions, a line may have been read in another order: then each word must stand
  /// near, as must single units of words that were cut.
  bool FindScattered(std::u16string_view wanted) {
    constexpr std::size_t kNear = 400;
    const auto isMixed = [](char16_t unit) { return unit >= 0x590 && unit <= 0x8FF; };
    if (std::ranges::none_of(wanted, isMixed)) return false;
    const std::size_t begin = at_ - std::min(at_, kNear);
    const std::u16string_view near =
        std::u16string_view(text_).substr(begin, 2 * kNear + 2 * wanted.size());
    std::size_t furthest = at_;
    for (std::size_t at = 0; at < wanted.size();) {
      const std::size_t end = std::min(wanted.find_first_of(u" \t\r\n", at), wanted.size());
      const std::u16string word = ComparableText(wanted.substr(at, end - at));
      const std::size_t found = near.find(word);
      if (found == near.npos) return false;
      furthest = std::max(furthest, begin + found);
      at = end + 1;
    }
    at_ = furthest;
    return true;
  }

  std::u16string text_;
  std::size_t at_ = 0;
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

  /// Empty if all of the question is printed, else what is not there.
  std::u16string MissingOf(const KeyRow& key) {
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

 private:
  std::u16string MissingKey(const std::u16string& number, const KeyRow& key) {
    if (!key.key.empty() || !AnswerOf(key.kind).options) return MissingText(number, key.key);
    return MissingText(number, {});
  }

  std::u16string MissingOption(std::size_t i, const std::u16string& option, std::u16string_view key) {
    if (option.empty()) return {};
    std::u16string label(1, OptionLetter(i));
    const bool isRight = key.find(OptionLetter(i)) != key.npos;
    if (sheet_ == Sheet::Solutions && isRight) label.insert(0, 1, kRightSign);
    return MissingText(label, option);
  }

  /// The label directly before the first piece, then the others.
  std::u16string MissingText(std::u16string label, std::u16string_view markup) {
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

bool HasOnEveryPage(const PdfPages& printed, std::u16string_view text) {
  const std::u16string wanted = ComparableText(text);
  return std::ranges::all_of(printed.pages, [&wanted](const std::u16string& page) {
    return ComparableText(page).find(wanted) != std::u16string::npos;
  });
}

}  // namespace

std::vector<std::u16string> ComparePaper(const FrameSetExam& exam, Sheet sheet, const SheetHead& head,
                                         const PdfPages& printed, const StringTable& strings) {
  if (printed.problem || printed.pages.empty()) return {strings.Text(text_id::kPdfUnreadable)};
  std::vector<std::u16string> lines;
  if (!HasOnEveryPage(printed, head.code) || !HasOnEveryPage(printed, head.versionName))
    lines.push_back(
        FillMessage(strings.Text(text_id::kPaperLacksCode), {head.versionName, head.code}));
  if (sheet == Sheet::Answers) return lines;
  SheetComparison comparison(exam, sheet, WithoutFeet(printed, head.code));
  for (const KeyRow& key : KeyTable(exam)) {
    const std::u16string missing = comparison.MissingOf(key);
    if (!missing.empty())
      lines.push_back(
          FillMessage(strings.Text(text_id::kPaperLacksText), {FormatInteger(key.number), missing}));
  }
  return lines;
}

}  // namespace quorvantis
