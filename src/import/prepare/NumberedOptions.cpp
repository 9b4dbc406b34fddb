// SPDX-License-Identifier: MIT
#include "import/labels/LineText.h"
#include "import/lines/LineNumber.h"
#include "import/paper/PaperRewrite.h"
#include "import/prepare/Steps.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// Tells the numbers of options from those of questions where both are written alike: "1. 1. 2. 3. 2. 1. 2.".
class NestedNumbers {
 public:
  explicit NestedNumbers(std::vector<LineNumber> numbers) : numbers_(std::move(numbers)) {
    for (std::size_t i = 0; i < numbers_.size(); ++i) Take(i);
    EndOptions();
  }

  /// Those of options; none unless most questions have two to nine of them, numbered without a gap.
  std::vector<LineNumber> Options() const {
    constexpr int kFewest = 2;
    const bool areSure = choices_ >= kFewest && choices_ * 2 >= questions_ && strays_ * 10 <= choices_;
    return areSure ? options_ : std::vector<LineNumber>();
  }

 private:
  int ValueAt(std::size_t i) const { return i < numbers_.size() ? numbers_[i].value : 0; }

  /// The number that is expected next begins a question if options follow it, or if it cannot be one.
  bool BeginsQuestion(std::size_t i) const {
    if (ValueAt(i) != questions_ + 1) return false;
    const bool isNextOption = ValueAt(i) == lastOption_ + 1 && questions_ > 0;
    const bool areMore = most_ > 0 && ValueAt(i) > most_ && ValueAt(i + 1) != ValueAt(i);
    return ValueAt(i + 1) == 1 || !isNextOption || areMore;
  }

  void Take(std::size_t i) {
    constexpr int kMostOptions = 9;
    if (BeginsQuestion(i)) {
      EndOptions();
      ++questions_;
    } else if (questions_ > 0 && ValueAt(i) == lastOption_ + 1 && lastOption_ < kMostOptions) {
      options_.push_back(numbers_[i]);
      ++lastOption_;
    } else {
      ++strays_;
    }
  }

  void EndOptions() {
    if (lastOption_ > 1) ++choices_;
    if (lastOption_ == 1) ++strays_;
    most_ = std::max(most_, lastOption_);
    lastOption_ = 0;
  }

  std::vector<LineNumber> numbers_;
  std::vector<LineNumber> options_;
  int questions_ = 0;
  int lastOption_ = 0;  ///< of the question at hand
  int most_ = 0;        ///< options of a question so far
  int choices_ = 0;     ///< questions that have options
  int strays_ = 0;      ///< numbers that are neither
};

/// The numbers at the beginnings of lines that are written like the first 1, or like the first 1 after it.
std::vector<std::vector<LineNumber>> NumbersByStyle(std::u16string_view text) {
  std::vector<std::vector<LineNumber>> styles;
  constexpr std::size_t kMostStyles = 6;
  for (const TextSpan& line : LinesOf(text, {0, text.size()})) {
    const std::optional<LineNumber> number = LineNumberOf(text, line);
    if (!number) continue;
    const auto isLike = [&number](const auto& style) { return style.front().IsLike(*number); };
    const auto style = std::find_if(styles.begin(), styles.end(), isLike);
    if (style != styles.end()) {
      style->push_back(*number);
    } else if (styles.size() < kMostStyles) {
      styles.push_back({*number});
    }
  }
  return styles;
}

}  // namespace

void step::NumberedOptions(PaperText& text, const PreparationContext& /*context*/) {
  constexpr char16_t kCircledOne = u'\u2460';
  std::vector<PaperEdit> edits;
  for (std::vector<LineNumber>& numbers : NumbersByStyle(text.characters)) {
    for (const LineNumber& option : NestedNumbers(std::move(numbers)).Options()) {
      const auto letter = static_cast<char16_t>(kCircledOne + option.value - 1);
      edits.push_back({option.label, Rewritten(text, option.label, {&letter, 1})});
    }
  }
  ApplyEdits(text, std::move(edits));
}

}  // namespace quorvantis
