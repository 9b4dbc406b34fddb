// SPDX-License-Identifier: MIT
#include "desktop/main/commands/CheckCommands.h"

#include "desktop/check/SeverityLook.h"
#include "desktop/controls/QtText.h"
#include "model/document/ExamServices.h"
#include "platform/texts/CheckTexts.h"
#include "platform/texts/PrintTexts.h"

#include <map>
#include <utility>

namespace quorvantis {
namespace {

bool IsOfScores(ExamFieldName field) {
  return field == ExamFieldName::RangeStart || field == ExamFieldName::RangeEnd ||
         field == ExamFieldName::RangeScore;
}

}  // namespace

CheckCommands::CheckCommands(ExamEditor& editor, const ExamFormControls& controls, QWidget& scores,
                             ShownQuestionCommands& overview, WindowNotice& notice, QWidget& window)
    : editor_(editor),
      controls_(controls),
      scores_(scores),
      overview_(overview),
      notice_(&notice),
      window_(window),
      checker_(
          editor, [this] { return IsWanted(); }, nullptr) {
  connect(&checker_, &ExamChecker::Changed, this, &CheckCommands::Checked);
  const StringTable& strings = editor.state.document.Services().strings;
  notice.Offer(ToQString(strings.Text(text_id::kCheckEntry)), [this] { Open(); });
  overview.SetOverviewOpened([this] { checker_.ExamChanged(); });
}

bool CheckCommands::IsWanted() const {
  const bool isOffered = notice_ && notice_->isVisibleTo(&window_);
  return (shown_ && shown_->isVisible()) || overview_.IsOverviewShown() || isOffered;
}

void CheckCommands::Open() {
  if (notice_) notice_->hide();
  if (!shown_) {
    shown_ = new CheckWindow(
        checker_, editor_.state.document.Services(), [this](const TextPlace& place) { Show(place); },
        &window_);
  }
  shown_->Appear();
  checker_.CheckNow();
}

void CheckCommands::PrintBegins() {
  isPrinting_ = true;
  checker_.CheckNow();
}

void CheckCommands::Checked() {
  MarkOverview();
  emit Judged(checker_.CountOf(Severity::Wrong) > 0);
  const bool isPrinting = std::exchange(isPrinting_, false);
  if (!notice_) return;
  if (checker_.CountOf(Severity::Wrong) == 0 || (shown_ && shown_->isVisible())) return notice_->hide();
  if (!isPrinting) return;
  const StringTable& strings = editor_.state.document.Services().strings;
  notice_->Tell(ToQString(strings.Text(text_id::kCheckPrintWrong)),
                ToQString(strings.Text(text_id::kCheckPrintGoesOn)));
}

/// The sign of the worst finding of each question, with all of them in its tooltip.
void CheckCommands::MarkOverview() {
  std::map<int, OverviewMark> marks;
  for (const ShownFinding& shown : checker_.Findings()) {
    const Finding& finding = shown.finding;
    if (shown.isIgnored || finding.place.question == 0) continue;
    const StringTable& strings = editor_.state.document.Services().strings;
    OverviewMark& mark = marks[finding.place.question];
    if (mark.tip.isEmpty()) mark.sign = SeverityIcon(finding.severity, window_);
    mark.tip += (mark.tip.isEmpty() ? "" : "\n") + SeverityWord(finding.severity, strings) + ": " +
                ToQString(finding.text);
  }
  overview_.ShowMarks(std::move(marks));
}

void CheckCommands::Show(const TextPlace& place) {
  if (IsOfScores(place.field)) return scores_.setFocus();
  ShowPlace(place, editor_, controls_);
}

}  // namespace quorvantis
