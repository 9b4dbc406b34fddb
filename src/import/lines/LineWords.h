// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// A line taken apart: its words, its numbers and everything else.
class LineWords {
 public:
  explicit LineWords(std::u16string_view line);

  /// Runs of letters, with Latin capitals, and those of Greek and Cyrillic, made small.
  const std::vector<std::u16string>& Words() const { return words_; }
  /// How many runs of digits there are, of any script.
  std::size_t Numbers() const { return values_.size(); }
  /// Their values; 0 for numbers of more than six digits.
  const std::vector<int>& Values() const { return values_; }
  /// What is neither letter nor digit, each kind of blank as " ".
  const std::u16string& Rest() const { return rest_; }
  /// The line with "0" for each number: lines that differ in their numbers alone have the same.
  const std::u16string& Template() const { return template_; }

 private:
  std::vector<std::u16string> words_;
  std::vector<int> values_;
  std::u16string rest_;
  std::u16string template_;
};

/// A letter of any script; a sign of Chinese or Japanese is one, too.
bool IsLetter(char16_t unit);

}  // namespace quorvantis
