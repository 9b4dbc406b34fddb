// SPDX-License-Identifier: MIT
// The steps that prepare a text for marking: what rules alone cannot express. A repository names those it
// needs under the key "Prepare". docs/IMPORT-RULES.md has an example of each.
#pragma once

#include "import/marking/ImportFailure.h"
#include "import/marking/ImportSettings.h"
#include "import/marking/RuleSearch.h"
#include "import/paper/Paper.h"
#include "import/paper/PaperOutline.h"
#include "import/prepare/PreparationMemory.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

/// What steps may look at besides the text.
struct PreparationContext {
  const Paper& paper;
  const ImportSettings& rules;  ///< without "Pattern", which is for what is marked
  const CancelHook& isCancelled;
  PreparationMemory* memory = nullptr;
};

/// What the rules find in a text that a step works on.
PaperOutline OutlineOf(const PaperText& text, const PreparationContext& context);

/// A step, all that anybody needs to know of it. `apply` changes the text, and leaves one as it is in which
/// it has nothing to do. It may throw ImportFailure.
struct PreparationStep {
  std::u16string_view name;  ///< as in "ImportExam.ini"
  void (*apply)(PaperText& text, const PreparationContext& context);
  int sentence;                 ///< number of the text that tells users what it does
  std::u16string_view comment;  ///< the same for readers of the file, in ASCII
};

/// All steps, in the order in which they run, whatever the order in the file.
std::span<const PreparationStep> PreparationSteps();

/// The names in a value of "Prepare": separated by commas or blanks, in any letter case. Unknown ones are
/// kept.
std::vector<std::u16string> ReadPrepareList(std::u16string_view value);

/// The value of "Prepare" for these names.
std::u16string PrepareListText(const std::vector<std::u16string>& names);

/// A text that is ready to be marked.
struct PreparedText {
  PaperText text{};
  std::optional<ImportFailure> failure{};  ///< then the text shows how far the steps got
};

/// Runs the steps that the rules name. Without any, the result is the running text. An unknown name is a
/// failure. `memory`, if given, is only for this paper.
PreparedText PreparePaper(const Paper& paper, const ImportSettings& rules, const CancelHook& isCancelled,
                          PreparationMemory* memory = nullptr);

}  // namespace quorvantis
