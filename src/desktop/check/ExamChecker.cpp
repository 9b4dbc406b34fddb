// SPDX-License-Identifier: MIT
#include "desktop/check/ExamChecker.h"

#include "check/ExamCheck.h"
#include "check/ScoreRules.h"
#include "model/document/ExamServices.h"
#include "shell/commands/ReplaceCommand.h"

#include <algorithm>
#include <utility>

namespace quorvantis {
namespace {

constexpr int kPause = 400;  // milliseconds without a change

}  // namespace

ExamChecker::ExamChecker(ExamEditor& editor, std::function<bool()> isWanted, QObject* parent)
    : QObject(parent),
      editor_(editor),
      isWanted_(std::move(isWanted)),
      ignored_(editor.state.document.Services().applicationFolder, editor.state.document.Services().files),
      run_(nullptr) {
  whenQuiet_.setSingleShot(true);
  whenQuiet_.setInterval(kPause);
  connect(&whenQuiet_, &QTimer::timeout, this, &ExamChecker::CheckNow);
}

ExamChecker::~ExamChecker() {
  run_.disconnect(this);
}

void ExamChecker::ExamChanged() {
  stale_ = true;
  if (isWanted_()) whenQuiet_.start();
}

void ExamChecker::CheckNow() {
  whenQuiet_.stop();
  stale_ = false;
  FollowFile();
  const auto exam = std::make_shared<const FrameSetExam>(SearchedExam(editor_));
  run_.Start([this, exam](const BackgroundRun::Cancelled& isCancelled) -> BackgroundRun::Finish {
    const auto findings = std::make_shared<std::vector<Finding>>(CheckExam(*exam, isCancelled));
    return [this, exam, findings] { Take(exam, std::move(*findings)); };
  });
}

/// What is ignored goes with the file of the exam.
void ExamChecker::FollowFile() {
  const std::filesystem::path file =
      editor_.state.IsUntitled() ? std::filesystem::path() : editor_.state.FileName().lexically_normal();
  if (std::exchange(examsBegun_, editor_.state.ExamsBegun()) != editor_.state.ExamsBegun())
    ignored_.Open(file);
  else
    ignored_.TakeTo(file);
}

void ExamChecker::Take(std::shared_ptr<const FrameSetExam> exam, std::vector<Finding> findings) {
  exam_ = std::move(exam);
  sum_ = quorvantis::SumOfScores(*exam_);
  findings_.clear();
  for (Finding& finding : findings) {
    const bool isIgnored = ignored_.Has(finding, *exam_);
    findings_.push_back({std::move(finding), isIgnored});
  }
  emit Changed();
}

int ExamChecker::CountOf(Severity severity) const {
  return static_cast<int>(std::ranges::count_if(findings_, [severity](const ShownFinding& shown) {
    return !shown.isIgnored && shown.finding.severity == severity;
  }));
}

void ExamChecker::Ignore(std::size_t index, bool isIgnored) {
  ShownFinding& shown = findings_.at(index);
  shown.isIgnored = isIgnored;
  isIgnored ? ignored_.Add(shown.finding, *exam_) : ignored_.Remove(shown.finding, *exam_);
  emit Changed();
}

}  // namespace quorvantis
