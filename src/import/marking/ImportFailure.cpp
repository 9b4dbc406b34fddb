// SPDX-License-Identifier: MIT
#include "import/marking/ImportFailure.h"

#include "platform/texts/ImportTexts.h"
#include "platform/texts/StudioTexts.h"
#include "text/MessageText.h"

namespace quorvantis {
namespace {

int TextOf(ImportFailure::Reason reason) {
  switch (reason) {
    case ImportFailure::Reason::Endless:
      return text_id::kRuleEndless;
    case ImportFailure::Reason::EmptyAnswer:
      return text_id::kRuleEmptyAnswer;
    case ImportFailure::Reason::UnknownStep:
      return text_id::kUnknownStep;
    default:
      return text_id::kRuleTooLarge;
  }
}

}  // namespace

std::u16string FailureText(const ImportFailure& failure, const StringTable& strings) {
  return FillMessage(strings.Text(TextOf(failure.reason)), {failure.key});
}

}  // namespace quorvantis
