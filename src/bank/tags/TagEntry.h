// SPDX-License-Identifier: MIT
#pragma once

#include "bank/tags/ShortSketch.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// What the file of tags says of a question.
struct TagEntry {
  std::u16string words;              ///< the first words of the question
  std::vector<std::u16string> tags;  ///< clean ones, sorted, each once
  ShortSketch sketch;                ///< empty if the file has none
};

/// By content key.
using TagEntries = std::map<std::string, TagEntry, std::less<>>;

/// A tag is free text on one line, by convention a subject or "name:value" such as "class:8b" or
/// "difficulty:2". This is the form in which it is kept: blanks at its ends are dropped, runs of blanks and
/// control characters become one blank, lone surrogates U+FFFD. Nothing for a tag without text, or of more
/// than 100 UTF-16 units.
std::optional<std::u16string> CleanTag(std::u16string_view tag);

/// Whether a unit counts as a blank in that.
bool IsBlankInTag(char16_t unit);

/// Whether two tags differ by their case at most.
bool IsSameTag(std::u16string_view a, std::u16string_view b);

/// Whether a question has a tag.
bool HasTag(const std::vector<std::u16string>& tags, std::u16string_view tag);

/// Where the tags of a question are: its own, or those of one that it was made from.
struct FoundTags {
  std::string key;
  double likeness = 0;  ///< 1 for its own, otherwise estimated
};

/// The entry of `key`; otherwise the one with the most similar sketch, if that is at least 0.8, as after a
/// question was edited. That is a guess (two of three within 0.05): offer such tags, do not take them
/// unasked.
std::optional<FoundTags> FindTags(const TagEntries& entries, std::string_view key,
                                  const QuestionSketch& sketch);

}  // namespace quorvantis
