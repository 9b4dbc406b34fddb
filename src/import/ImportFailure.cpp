// SPDX-License-Identifier: MIT
#include "import/ImportFailure.h"

#include "text/MessageText.h"

namespace quorvantis {
namespace {

std::u16string_view Format(ImportFailure::Reason reason) {
  switch (reason) {
    case ImportFailure::Reason::Endless:
      return u"Nothing was imported: the rule \"%s\" in ImportExam.ini never comes to an end, because it "
             u"matches "
             u"nothing at all or the marks that replace its matches. Change it to match what stands in the "
             u"paper.";
    case ImportFailure::Reason::EmptyAnswer:
      return u"Nothing was imported: the rule \"%s\" in ImportExam.ini matches empty answers. Change it to "
             u"match "
             u"at least one character.";
    case ImportFailure::Reason::TooLarge:
      return u"Nothing was imported: the rule \"%s\" in ImportExam.ini needs too much memory. Make it "
             u"simpler.";
    case ImportFailure::Reason::Cancelled:
      return u"Nothing was imported: it was cancelled while the rule \"%s\" in ImportExam.ini was tried.";
  }
  return {};
}

}  // namespace

std::u16string FailureText(const ImportFailure& failure) {
  return FillMessage(Format(failure.reason), {failure.key});
}

}  // namespace quorvantis
