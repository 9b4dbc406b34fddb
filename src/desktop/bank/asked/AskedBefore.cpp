// SPDX-License-Identifier: MIT
#include "desktop/bank/asked/AskedBefore.h"

#include "bank/near/OpenedContent.h"
#include "desktop/bank/desk/BankExamCaption.h"
#include "desktop/bank/desk/BankHitText.h"
#include "desktop/controls/QtText.h"
#include "platform/Progress.h"
#include "platform/texts/AskedTexts.h"
#include "platform/texts/CheckTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"

#include <algorithm>
#include <cmath>
#include <system_error>
#include <utility>

namespace quorvantis {
namespace {

bool HasSame(const std::vector<BankUse>& uses) {
  return std::any_of(uses.begin(), uses.end(),
                     [](const BankUse& use) { return IsSameQuestion(use.relation); });
}

/// The questions as they are now, up to one at which the progress is cancelled.
std::vector<QuestionContent> ContentsOfOpen(const FrameSetExam& exam, FileDigestCache& digests,
                                            Progress& progress) {
  std::vector<QuestionContent> contents;
  const int count = exam.LastCountedQuestion();
  contents.reserve(static_cast<std::size_t>(count));
  for (int number = 1; number <= count && !progress.IsCancelled(); ++number)
    contents.push_back(OpenedContent(exam.Question(number), digests));
  return contents;
}

QString ExamCaptions(const StringTable& strings) {
  QStringList captions;
  for (const int text : {text_id::kAskedColumnExam, text_id::kAskedColumnDay, text_id::kAskedColumnSame,
                         text_id::kAskedColumnVariants, text_id::kAskedColumnShare})
    captions << ToQString(strings.Text(text));
  return captions.join('\t');
}

/// Columns as spreadsheets take them.
QString ExamLine(const QString& exam, const BankShare& share, const StringTable& strings) {
  const QStringList cells{exam, BankExamDay(share.exam), QString::number(share.same),
                          QString::number(share.variants), ShareText(share, strings)};
  return cells.join('\t');
}

}  // namespace

std::size_t AskedBefore::SameCount() const {
  return static_cast<std::size_t>(std::count_if(likeness.uses.begin(), likeness.uses.end(), HasSame));
}

std::size_t AskedBefore::VariantCount() const {
  const auto isVariant = [](const std::vector<BankUse>& uses) { return !uses.empty() && !HasSame(uses); };
  return static_cast<std::size_t>(std::count_if(likeness.uses.begin(), likeness.uses.end(), isVariant));
}

AskedBefore CompareWithBank(const BankDesk& desk, KeptBankMemory& memory, FileDigestCache& digests,
                            const OpenExam& open, Progress& progress) {
  AskedBefore asked{open.exam, {}};
  const auto isCancelled = [&progress] { return progress.IsCancelled(); };
  digests.SetCancelled(isCancelled);
  const std::vector<QuestionContent> contents = ContentsOfOpen(*open.exam, digests, progress);
  auto index = desk.Opened(asked.likeness.problem);
  const auto remembered = index ? memory.For(*index, isCancelled) : nullptr;
  if (remembered) {
    std::error_code ignored;
    const std::filesystem::path self = open.file.empty() ? open.file : canonical(open.file, ignored);
    asked.likeness = remembered->Like(*index, desk.Digest(), contents, self, progress);
    for (std::vector<BankUse>& uses : asked.likeness.uses) PutNewestFirst(uses);
  }
  asked.likeness.isCancelled = progress.IsCancelled();
  digests.SetCancelled({});
  return asked;
}

void PutNewestFirst(std::vector<BankUse>& uses) {
  std::stable_sort(uses.begin(), uses.end(), [](const BankUse& a, const BankUse& b) {
    return std::pair(IsSameQuestion(a.relation), a.exam.written) >
           std::pair(IsSameQuestion(b.relation), b.exam.written);
  });
}

BankExamNames NamesOfOlder(const AskedBefore& asked, const StringTable& strings) {
  std::vector<const BankExam*> exams;
  exams.reserve(asked.likeness.exams.size());
  for (const BankShare& share : asked.likeness.exams) exams.push_back(&share.exam);
  return {exams, strings};
}

QString RelationWords(QuestionRelation relation, const StringTable& strings) {
  switch (relation) {
    case QuestionRelation::Equal:
      return ToQString(strings.Text(text_id::kAskedEqual));
    case QuestionRelation::NearlyEqual:
      return ToQString(strings.Text(text_id::kAskedNearlyEqual));
    case QuestionRelation::OtherNumbers:
      return ToQString(strings.Text(text_id::kAskedOtherNumbers));
    case QuestionRelation::OtherFiles:
      return ToQString(strings.Text(text_id::kAskedOtherFiles));
    case QuestionRelation::OtherOptions:
      return ToQString(strings.Text(text_id::kAskedOtherOptions));
    case QuestionRelation::OtherText:
    case QuestionRelation::Different:
      break;
  }
  return {};
}

QString ShareText(const BankShare& share, const StringTable& strings) {
  return ToQString(
      FillMessage(strings.Text(text_id::kAskedShare), {FormatInteger(std::lround(share.share * 100))}));
}

QString QuestionCaption(const AskedBefore& asked, std::size_t question, const StringTable& strings) {
  constexpr qsizetype kLongest = 80;
  const int number = static_cast<int>(question) + 1;
  QString caption = ToQString(FillMessage(strings.Text(text_id::kCheckQuestion), {FormatInteger(number)}));
  BankHit hit;
  hit.question.text = asked.exam->Question(number).text;
  QString beginning = ToQString(ExcerptOf(hit).text).trimmed();
  if (beginning.size() > kLongest) beginning = beginning.left(kLongest - 1) + QChar(u'\u2026');
  // In its own direction: it may be in another language than the window.
  if (!beginning.isEmpty()) caption += ": " + QString(QChar(0x2068)) + beginning + QChar(0x2069);
  return caption;
}

QString AskedBeforeText(const AskedBefore& asked, const StringTable& strings) {
  const BankExamNames names = NamesOfOlder(asked, strings);
  QStringList lines;
  for (std::size_t i = 0; i < asked.likeness.uses.size(); ++i) {
    if (!asked.likeness.uses[i].empty()) lines << QuestionCaption(asked, i, strings);
    for (const BankUse& use : asked.likeness.uses[i]) {
      lines << "\t" + BankPlaceText(names.Of(use.exam), use.number, strings) + "\t" + BankExamDay(use.exam) +
                   "\t" + RelationWords(use.relation, strings);
    }
  }
  if (!asked.likeness.exams.empty()) lines << QString() << ExamCaptions(strings);
  for (const BankShare& share : asked.likeness.exams) lines << ExamLine(names.Of(share.exam), share, strings);
  return lines.join('\n') + '\n';
}

}  // namespace quorvantis
