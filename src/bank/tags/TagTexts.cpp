// SPDX-License-Identifier: MIT
#include "bank/tags/TagTexts.h"

#include "platform/StringTable.h"
#include "platform/texts/BankTexts.h"
#include "text/MessageText.h"
#include "text/PathText.h"
#include "text/Utf.h"

namespace quorvantis {
namespace {

int TextOf(TagOutcome outcome) {
  switch (outcome) {
    case TagOutcome::Damaged:
      return text_id::kTagsDamaged;
    case TagOutcome::Newer:
      return text_id::kTagsNewer;
    case TagOutcome::NotRead:
      return text_id::kTagsNotRead;
    case TagOutcome::Busy:
      return text_id::kTagsBusy;
    case TagOutcome::Done:
    case TagOutcome::NotWritten:
      break;
  }
  return text_id::kTagsNotWritten;
}

}  // namespace

std::u16string TagProblemText(const TagResult& result, const std::filesystem::path& file,
                              const StringTable& strings) {
  if (result.IsDone()) return {};
  return FillMessage(strings.Text(TextOf(result.outcome)), {PathToText(file), Utf8ToUtf16(result.reason)});
}

}  // namespace quorvantis
