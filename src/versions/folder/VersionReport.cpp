// SPDX-License-Identifier: MIT
#include "versions/folder/VersionReport.h"

#include "model/AnswerLetters.h"
#include "platform/texts/VersionTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"
#include "text/Utf.h"
#include "versions/folder/CopyingReport.h"
#include "versions/folder/VersionFiles.h"

#include <cmath>
#include <cstddef>
#include <set>

namespace quorvantis {
namespace {

int PinTextNumber(PinReason reason) {
  switch (reason) {
    case PinReason::Teacher:
      return text_id::kPinnedByTeacher;
    case PinReason::NamesQuestion:
      return text_id::kPinnedNamesQuestion;
    case PinReason::IsNamed:
      return text_id::kPinnedIsNamed;
    case PinReason::FollowsOn:
      return text_id::kPinnedFollowsOn;
    case PinReason::CannotMoveAlong:
      return text_id::kPinnedCannotMoveAlong;
    case PinReason::Empty:
      return text_id::kPinnedEmpty;
    case PinReason::TeacherOption:
      return text_id::kPinnedOptionByTeacher;
    case PinReason::SpeaksOfOthers:
      return text_id::kPinnedSpeaksOfOthers;
    case PinReason::NamesLetters:
      return text_id::kPinnedNamesLetters;
    case PinReason::OwnLetters:
      return text_id::kPinnedOwnLetters;
    case PinReason::TooFew:
      return text_id::kPinnedTooFew;
    case PinReason::OddKey:
      return text_id::kPinnedOddKey;
  }
  return 0;
}

std::u16string Percent(double share) {
  constexpr double kPercent = 100;
  return FormatInteger(std::lround(share * kPercent)) + u" %";
}

std::u16string ShareOf(std::size_t part, std::size_t whole) {
  return Percent(whole == 0 ? 0 : static_cast<double>(part) / static_cast<double>(whole));
}

}  // namespace

std::u16string PinText(const PinnedPart& part, const StringTable& strings) {
  const std::u16string second =
      part.option ? std::u16string(1, OptionLetter(*part.option)) : FormatInteger(part.other);
  return FillMessage(strings.Text(PinTextNumber(part.reason)), {FormatInteger(part.question), second});
}

std::vector<std::u16string> PlanReport(const ExamPaper& exam, const VersionRequest& request,
                                       const VersionPlan& plan, const CopyingChance& chance,
                                       const StringTable& strings) {
  std::vector<std::u16string> lines;
  if (plan.moves != request.moves) lines.push_back(strings.Text(text_id::kVersionsNarrowed));
  if (exam.randomMode != RandomMode::Off) lines.push_back(strings.Text(text_id::kVersionsRandomOff));
  for (const PinnedPart& part : plan.pinned) lines.push_back(PinText(part, strings));
  if (plan.versions.size() < 2) return lines;
  lines.push_back(FillMessage(strings.Text(text_id::kCopyingChance),
                              {Percent(chance.sameQuestion), Percent(chance.sameKey)}));
  for (const CopyingPair& pair : CopyingReport(exam, plan)) {
    lines.push_back(
        FillMessage(strings.Text(text_id::kCopyingOfPair),
                    {plan.versions[pair.first].name, plan.versions[pair.second].name,
                     ShareOf(pair.sameQuestions, chance.places), ShareOf(pair.sameKeys, chance.keyed)}));
  }
  return lines;
}

bool DoPapersDiffer(const PlanRecord& record) {
  std::set<int> lengths;
  for (const PlannedVersion& version : record.plan.versions) {
    const std::u16string paper = SheetFileOf(version.name, Sheet::Paper);
    for (const MadeFile& made : record.files) {
      if (made.name == paper) lengths.insert(made.pages);
    }
  }
  return lengths.size() > 1;
}

std::string ReportText(const ExamPaper& exam, const PlanRecord& record, const CopyingChance& chance,
                       const StringTable& strings) {
  std::vector<std::u16string> lines = PlanReport(exam, record.request, record.plan, chance, strings);
  if (DoPapersDiffer(record)) lines.push_back(strings.Text(text_id::kVersionsPagesDiffer));
  std::string text;
  for (const std::u16string& line : lines) text += Utf16ToUtf8(line) + "\n";
  return text;
}

}  // namespace quorvantis
