// SPDX-License-Identifier: MIT
#include "learn/rules/RefusalText.h"

#include "platform/texts/LearnTexts.h"
#include "text/MessageText.h"

namespace quorvantis {
namespace {

int TextOf(RepositoryRefusal refusal) {
  switch (refusal) {
    case RepositoryRefusal::None:
    case RepositoryRefusal::NameEmpty:
      return text_id::kRulesNameEmpty;
    case RepositoryRefusal::NameTaken:
      return text_id::kRulesNameTaken;
    case RepositoryRefusal::NamePrefix:
      return text_id::kRulesNamePrefix;
    case RepositoryRefusal::NameUnsafe:
      return text_id::kRulesNameUnsafe;
    case RepositoryRefusal::RuleTooLong:
      return text_id::kRuleTooLong;
    case RepositoryRefusal::RuleUnsafe:
      return text_id::kRuleUnsafe;
    case RepositoryRefusal::CannotEncode:
      return text_id::kRulesNotEncoded;
  }
  return text_id::kRulesNotEncoded;
}

}  // namespace

std::u16string RefusalText(const AddedRepository& added, const Repository& repository,
                           const StringTable& strings) {
  const RepositoryRefusal refusal = added.refusal;
  if (refusal == RepositoryRefusal::None) return {};
  const bool isOfRule = refusal == RepositoryRefusal::RuleTooLong || refusal == RepositoryRefusal::RuleUnsafe;
  const std::u16string& first = isOfRule ? added.other : repository.name;
  return FillMessage(strings.Text(TextOf(refusal)), {first, added.other});
}

}  // namespace quorvantis
