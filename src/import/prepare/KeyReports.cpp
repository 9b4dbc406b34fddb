// SPDX-License-Identifier: MIT
#include "import/prepare/KeyReports.h"

#include "text/AsciiCase.h"

#include <algorithm>

namespace quorvantis {

PaperText PreparedBefore(const Paper& paper, const ImportSettings& rules, std::u16string_view step,
                         const CancelHook& isCancelled) {
  ImportSettings earlier = rules;
  earlier.prepare.clear();
  for (const PreparationStep& known : PreparationSteps()) {
    if (EqualsIgnoringAsciiCase(known.name, step)) break;
    const bool isNamed = std::ranges::any_of(
        rules.prepare, [&known](const auto& name) { return EqualsIgnoringAsciiCase(name, known.name); });
    if (isNamed) earlier.prepare.emplace_back(known.name);
  }
  PreparedText prepared = PreparePaper(paper, earlier, isCancelled);
  if (prepared.failure) throw ImportFailure(*prepared.failure);
  return std::move(prepared.text);
}

}  // namespace quorvantis
