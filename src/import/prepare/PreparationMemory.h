// SPDX-License-Identifier: MIT
#pragma once

#include "import/paper/PaperOutline.h"

#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

namespace quorvantis {

/// What steps have made of one paper, and the outlines of it: for those who prepare the paper again and again
/// by rules that differ in a few places. It keeps some megabytes at most.
class PreparationMemory {
 public:
  using Text = std::shared_ptr<const PaperText>;

  /// What a step has made; null if that is not known. `made` says by which rules and steps.
  Text Find(const std::u16string& made) const;

  void Keep(std::u16string made, Text text);

  /// The outline of a text by rules, made anew only if it is not known.
  PaperOutline Outline(const PaperText& text, const ImportSettings& rules, const CancelHook& isCancelled);

 private:
  struct Outlined {
    std::u16string rules;
    std::u16string text;
    PaperOutline outline;
  };

  std::unordered_map<std::u16string, Text> texts_;
  std::size_t units_ = 0;  ///< of all texts
  std::deque<Outlined> outlines_;
};

/// The rules that steps can see, in one text: equal for rules that make no difference to them.
std::u16string RulesAsText(const ImportSettings& rules);

}  // namespace quorvantis
