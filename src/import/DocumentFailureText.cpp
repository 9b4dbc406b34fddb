// SPDX-License-Identifier: MIT
#include "import/DocumentFailureText.h"

#include "platform/texts/ImportTexts.h"
#include "platform/texts/ProgramTexts.h"
#include "text/MessageText.h"
#include "text/PathText.h"

namespace quorvantis {
namespace {

int TextOf(WordResult result) {
  switch (result) {
    case WordResult::NotFound:
      return text_id::kDocumentNotFound;
    case WordResult::UnknownFormat:
      return text_id::kDocumentUnknown;
    case WordResult::Damaged:
      return text_id::kDocumentDamaged;
    case WordResult::PasswordProtected:
      return text_id::kDocumentLocked;
    case WordResult::TooLarge:
      return text_id::kDocumentTooLarge;
    case WordResult::TooDeep:
      return text_id::kDocumentTooDeep;
    case WordResult::WordProcessorMissing:
      return text_id::kNoWordProcessor;
    case WordResult::TimedOut:
      return text_id::kDocumentTimedOut;
    case WordResult::CannotAccess:
    case WordResult::Cancelled:
    case WordResult::Done:
      break;
  }
  return text_id::kDocumentNoAccess;
}

int PictureTextOf(WordResult result) {
  switch (result) {
    case WordResult::NotFound:
      return text_id::kPictureElsewhere;
    case WordResult::UnknownFormat:
      return text_id::kPictureUnknown;
    case WordResult::TooLarge:
      return text_id::kPictureTooLarge;
    case WordResult::WordProcessorMissing:
      return text_id::kPictureNotDrawn;
    case WordResult::TimedOut:
      return text_id::kPictureTimedOut;
    case WordResult::CannotAccess:
      return text_id::kPictureNoFile;
    default:
      return text_id::kPictureDamaged;
  }
}

}  // namespace

std::u16string PictureFailureText(WordResult result, std::u16string_view count, const StringTable& strings) {
  return FillMessage(strings.Text(PictureTextOf(result)), {count});
}

std::u16string DocumentFailureText(WordResult result, const std::filesystem::path& document,
                                   const StringTable& strings) {
  return FillMessage(strings.Text(TextOf(result)), {PathToText(document)});
}

}  // namespace quorvantis
