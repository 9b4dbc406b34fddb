// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>

namespace quorvantis {

class StringTable;

/// The words of the filters of a query, such as "kind" and "choice", in the language of the program. Those of
/// English work in every language. All words are folded (FoldForSearch).
class QueryWords {
 public:
  /// English alone.
  QueryWords() = default;
  explicit QueryWords(const StringTable& strings);

  /// The English word for the name of a filter; `folded` itself if it is none.
  std::u16string NameIn(const std::u16string& folded) const;

  /// The English word for a value of the filter `name`, likewise.
  std::u16string ValueIn(const std::u16string& name, const std::u16string& folded) const;

  /// Whether `name`, an English word, is the name of a filter.
  static bool IsName(const std::u16string& name);

 private:
  using Words = std::map<std::u16string, std::u16string>;  // in the language of the program: in English

  Words names_;
  Words kinds_;
  Words parts_;
};

}  // namespace quorvantis
