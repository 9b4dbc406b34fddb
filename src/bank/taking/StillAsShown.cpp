// SPDX-License-Identifier: MIT
#include "bank/taking/StillAsShown.h"

#include "text/Utf.h"

#include <algorithm>
#include <string>

namespace quorvantis {
namespace {

bool IsAsKept(const std::u16string& now, const std::u16string& kept) {
  return now == kept || Utf8ToUtf16(Utf16ToUtf8(now)) == kept;
}

}  // namespace

bool IsStillSo(const ExamQuestion& now, const BankQuestion& question) {
  return IsAsKept(now.text, question.text) &&
         std::equal(now.options.begin(), now.options.end(), question.options.begin(), IsAsKept);
}

}  // namespace quorvantis
