// SPDX-License-Identifier: MIT
#pragma once

#include "import/marking/EditedSequence.h"
#include "import/marking/TextOrigins.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quorvantis {

/// What a rule has taken out of a text.
struct ReplacedMatch {
  std::u16string key;  ///< of the rule
  TextOrigins units;   ///< the places of what it took in the unmarked text
};

/// Where everything in a marked text came from, and where the rest went.
struct MarkingTrace {
  TextOrigins origins;  ///< of the units of the marked text
  std::vector<ReplacedMatch> replaced{};
};

/// Follows a text while it is being marked.
class MarkingTracer {
 public:
  /// `size` is that of the text before anything is replaced.
  explicit MarkingTracer(std::size_t size) : origins_(OriginsOfOriginal(size)) {}

  /// Follows a replacement of `size` units from `begin` on by `count` new ones.
  void Replace(std::u16string_view key, std::size_t begin, std::size_t size, std::size_t count) {
    ReplacedMatch match{std::u16string(key), {}};
    for (std::size_t i = begin; i < begin + size; ++i) {
      if (origins_.At(i) != kInserted) match.units.push_back(origins_.At(i));
    }
    replaced_.push_back(std::move(match));
    origins_.Replace(begin, begin + size, count, kInserted);
  }

  /// What has become of the text; the tracer is empty after that.
  MarkingTrace Take() { return {origins_.Take(), std::move(replaced_)}; }

 private:
  EditedSequence<std::uint32_t> origins_;
  std::vector<ReplacedMatch> replaced_;
};

}  // namespace quorvantis
