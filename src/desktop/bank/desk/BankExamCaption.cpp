// SPDX-License-Identifier: MIT
#include "desktop/bank/desk/BankExamCaption.h"

#include "bank/index/FileStamp.h"
#include "desktop/controls/QtText.h"
#include "platform/texts/AskedTexts.h"
#include "text/DayText.h"
#include "text/MessageText.h"
#include "text/NumberText.h"

namespace quorvantis {

QString BankExamName(const BankExam& exam) {
  const QString title = ToQString(exam.title).simplified();
  return title.isEmpty() ? PathToQString(exam.path.stem()) : title;
}

QString BankPlaceText(const QString& exam, int number, const StringTable& strings) {
  const QString isolated = QChar(0x2068) + exam + QChar(0x2069);
  return ToQString(
      FillMessage(strings.Text(text_id::kBankPlace), {FromQString(isolated), FormatInteger(number)}));
}

QString BankExamDay(const BankExam& exam) {
  return ToQString(DayText(LocalDay(exam.written)));
}

}  // namespace quorvantis
