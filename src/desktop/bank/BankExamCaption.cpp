// SPDX-License-Identifier: MIT
#include "desktop/bank/BankExamCaption.h"

#include "desktop/controls/QtText.h"

#include <QDateTime>

namespace quorvantis {

QString BankExamName(const BankExam& exam) {
  const QString title = ToQString(exam.title).simplified();
  return title.isEmpty() ? PathToQString(exam.path.stem()) : title;
}

QString BankExamDay(const BankExam& exam) {
  constexpr std::int64_t kNanosecondsInMillisecond = 1'000'000;
  const QDateTime time = QDateTime::fromMSecsSinceEpoch(exam.written / kNanosecondsInMillisecond);
  return time.date().toString(Qt::ISODate);
}

}  // namespace quorvantis
