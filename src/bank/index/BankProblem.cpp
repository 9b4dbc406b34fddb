// SPDX-License-Identifier: MIT
#include "bank/index/BankProblem.h"

#include "bank/index/Database.h"
#include "platform/StringTable.h"
#include "platform/texts/BankTexts.h"
#include "text/MessageText.h"
#include "text/PathText.h"
#include "text/Utf.h"

#include <sqlite3.h>

namespace quorvantis {
namespace {

BankTrouble TroubleOf(int code) {
  constexpr int kPrimary = 0xFF;
  switch (code & kPrimary) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return BankTrouble::Busy;
    case SQLITE_FULL:
      return BankTrouble::NoSpace;
    case SQLITE_READONLY:
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
    case SQLITE_AUTH:
      return BankTrouble::NotWritable;
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
      return BankTrouble::Damaged;
    case SQLITE_IOERR:
      // A limit of the user's or of the file system; the library knows a full disk only as ENOSPC.
      return code == SQLITE_IOERR_WRITE || code == SQLITE_IOERR_TRUNCATE ? BankTrouble::NoSpace
                                                                         : BankTrouble::Other;
    default:
      return BankTrouble::Other;
  }
}

int TextOf(BankTrouble trouble) {
  switch (trouble) {
    case BankTrouble::None:
      break;
    case BankTrouble::Busy:
      return text_id::kBankBusy;
    case BankTrouble::NoSpace:
      return text_id::kBankNoSpace;
    case BankTrouble::NotWritable:
      return text_id::kBankNotWritable;
    case BankTrouble::NotAnIndex:
      return text_id::kBankNotAnIndex;
    case BankTrouble::Damaged:
      return text_id::kBankDamaged;
    case BankTrouble::NoFolder:
      return text_id::kBankNoFolder;
    case BankTrouble::Other:
      break;
  }
  return text_id::kBankOtherProblem;
}

}  // namespace

BankProblem ProblemOf(const DatabaseError& error, const std::filesystem::path& file) {
  return {TroubleOf(error.Code()), file, error.what()};
}

std::u16string ProblemText(const BankProblem& problem, const StringTable& strings) {
  if (!problem.IsAnything()) return {};
  return FillMessage(strings.Text(TextOf(problem.trouble)),
                     {PathToText(problem.file), Utf8ToUtf16(problem.detail)});
}

}  // namespace quorvantis
