// SPDX-License-Identifier: MIT
#include "import/ImportFailure.h"

#include "platform/TextNumbers.h"
#include "text/MessageText.h"

namespace quorvantis {

std::u16string FailureText(const ImportFailure& failure, const StringTable& strings) {
  const int text = failure.reason == ImportFailure::Reason::Endless       ? text_id::kRuleEndless
                   : failure.reason == ImportFailure::Reason::EmptyAnswer ? text_id::kRuleEmptyAnswer
                                                                          : text_id::kRuleTooLarge;
  return FillMessage(strings.Text(text), {failure.key});
}

}  // namespace quorvantis
