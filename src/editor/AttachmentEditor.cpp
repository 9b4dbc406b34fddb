// SPDX-License-Identifier: MIT
#include "editor/AttachmentEditor.h"

#include "editor/AttachmentShifts.h"
#include "editor/WorkCopies.h"
#include "examfile/FileFailure.h"
#include "model/MediaKinds.h"
#include "model/QuestionKinds.h"
#include "model/document/ExamServices.h"
#include "platform/StringTable.h"
#include "platform/UserDialogs.h"
#include "platform/texts/FileTexts.h"
#include "platform/texts/ProgramTexts.h"
#include "text/MessageText.h"
#include "text/PathText.h"

#include <algorithm>
#include <iterator>
#include <system_error>

namespace quorvantis {
namespace {

void RemoveEntry(ShownAttachments& list) {
  const auto index = static_cast<std::ptrdiff_t>(*list.selected);
  list.names.erase(list.names.begin() + index);
  list.missing.erase(list.missing.begin() + index);
  list.selected.reset();
  list.visible = !list.names.empty();
}

}  // namespace

int AttachmentEditor::IsVideoLike(std::u16string_view fileName) {
  return HasVideoExtension(fileName) ? 1 : 0;
}

bool AttachmentEditor::IsMissing(const std::u16string& copy) const {
  std::error_code ignored;
  return !state_.document.pathsWithoutContent.contains(copy) &&
         !std::filesystem::is_regular_file(TextToPath(copy), ignored);
}

/// Fills a list from the document's.
void AttachmentEditor::Fill(ShownAttachments& list, const AttachmentList& names,
                            const AttachmentList& paths) const {
  const auto count = static_cast<std::ptrdiff_t>(CountEntries(names));
  list.names.assign(names.begin(), names.begin() + count);
  list.missing.clear();
  std::transform(paths.begin(), paths.begin() + count, std::back_inserter(list.missing),
                 [this](const std::u16string& copy) { return IsMissing(copy); });
  list.selected.reset();
  list.visible = count > 0;
}

/// Appends an entry and returns its index, which is also its index in the document's lists.
std::size_t AttachmentEditor::AppendEntry(ShownAttachments& list, const std::u16string& name,
                                          const std::filesystem::path& copy) const {
  list.names.push_back(name);
  list.missing.push_back(IsMissing(PathToText(copy)));
  list.visible = true;
  return list.names.size() - 1;
}

std::optional<std::filesystem::path> AttachmentEditor::ChooseFile() const {
  const ExamServices& services = state_.document.Services();
  const StringTable& strings = services.strings;
  const std::u16string filter = strings.Text(text_id::kAttachmentFilter) + strings.Text(text_id::kAllFiles);
  return services.dialogs.ChooseFileToOpen({filter, {}, {}});
}

std::filesystem::path AttachmentEditor::MakeCopy(const std::filesystem::path& source) {
  state_.MarkModified();
  const auto workRoot = AttachmentWorkRoot(state_.document.Services().applicationFolder);
  const std::filesystem::path copy = MakeWorkCopy(workRoot, source, TakeCopyNumber(), copyFailure_);
  if (copyFailure_) copyFailed_ = source;
  return copy;
}

std::u16string AttachmentEditor::CopyProblem() const {
  if (copyFailed_.empty()) return {};
  const StringTable& strings = state_.document.Services().strings;
  return FillMessage(strings.Text(text_id::kAttachedWithoutContent),
                     {PathToText(copyFailed_), FileFailureText(strings, copyFailure_)});
}

void AttachmentEditor::AttachExamFile() {
  copyFailed_.clear();
  if (examList_.IsFull()) return;
  if (const auto source = ChooseFile()) AttachExamFile(*source);
}

void AttachmentEditor::AttachQuestionFile() {
  copyFailed_.clear();
  if (questionList_.IsFull()) return;
  if (const auto source = ChooseFile()) AttachQuestionFile(*source);
}

void AttachmentEditor::AttachExamFile(const std::filesystem::path& source) {
  copyFailed_.clear();
  if (examList_.IsFull()) return;
  const std::u16string name = PathToText(source.filename());
  const auto copy = MakeCopy(source);
  const std::size_t index = AppendEntry(examList_, name, copy);
  exam_.Change().examAttachmentPaths[index] = PathToText(copy);
  exam_.Change().examAttachmentNames[index] = name;
  state_.view.FormChanged();
}

void AttachmentEditor::AttachQuestionFile(const std::filesystem::path& source) {
  copyFailed_.clear();
  if (questionList_.IsFull()) return;
  const std::u16string name = PathToText(source.filename());
  const auto copy = MakeCopy(source);
  const std::size_t index = AppendEntry(questionList_, name, copy);
  questionList_.RequestSelection(static_cast<std::size_t>(IsVideoLike(name)), index != 0);
  ChangeCurrent().attachmentPaths[index] = PathToText(copy);
  ChangeCurrent().attachmentNames[index] = name;
  UpdateOralToggle();
  state_.view.FormChanged();
}

void AttachmentEditor::RemoveSelectedAttachment(AttachedTo list) {
  const bool ofExam = list == AttachedTo::Exam;
  ShownAttachments& shown = ofExam ? examList_ : questionList_;
  if (!shown.selected) return;
  if (ofExam) {
    RemoveExamAttachment(exam_.Change(), *shown.selected, shown.names.size());
  } else {
    RemoveQuestionAttachment(ChangeCurrent(), *shown.selected, shown.names.size());
  }
  RemoveEntry(shown);
  if (!ofExam) UpdateOralToggle();
  state_.view.FormChanged();
}

AttachedFile AttachmentEditor::Entry(const std::u16string& name, const std::u16string& copy) const {
  return {name, TextToPath(copy), !state_.document.pathsWithoutContent.contains(copy)};
}

std::optional<AttachedFile> AttachmentEditor::SelectedExamFile() const {
  if (!examList_.selected) return std::nullopt;
  const std::size_t index = *examList_.selected;
  const std::u16string& path = state_.document.examAttachmentPaths[index];
  if (!state_.document.IsPath(path)) return AttachedFile{examList_.names[index], {}};
  return Entry(examList_.names[index], path);
}

std::optional<AttachedFile> AttachmentEditor::SelectedQuestionFile() const {
  if (!questionList_.selected) return std::nullopt;
  const std::size_t index = *questionList_.selected;
  return Entry(questionList_.names[index], state_.Current().attachmentPaths[index]);
}

void AttachmentEditor::ReadOralFlag() {
  oralToggleState_ = state_.Current().oralFlag == 1 ? 1 : 0;
}

void AttachmentEditor::ToggleOral() {
  oralToggleState_ = oralToggleState_ == 0 ? 1 : 0;
  ChangeCurrent().oralFlag = oralToggleState_;
  UpdateOralToggle();
  state_.view.FormChanged();
}

void AttachmentEditor::RefreshQuestionList() {
  Fill(questionList_, state_.Current().attachmentNames, state_.Current().attachmentPaths);
  for (std::size_t i = 0; i < questionList_.names.size(); ++i)
    questionList_.RequestSelection(static_cast<std::size_t>(IsVideoLike(questionList_.names[i])), i != 0);
  UpdateOralToggle();
}

void AttachmentEditor::RefreshExamList() {
  Fill(examList_, state_.document.examAttachmentNames, state_.document.examAttachmentPaths);
}

void AttachmentEditor::RemoveQuestionAttachments(int question) {
  RemoveAttachmentLists(exam_.Change(), question);
  questionList_ = {};
}

void AttachmentEditor::ShiftAttachmentsForInsert(int question) {
  ShiftAttachmentLists(exam_.Change(), question);
  questionList_ = {};
}

/// Refreshed only by loading, attaching, removing and toggling: selecting an entry does not make the toggle
/// appear by itself. A question that is not oral loses its flag when it is shown.
void AttachmentEditor::UpdateOralToggle() {
  if (!AnswerOf(state_.CurrentKind()).oral) {
    ChangeCurrent().oralFlag = 0;
    oralToggleShown_ = false;
    return;
  }
  oralToggleShown_ = questionList_.selected.has_value();
  ReadOralFlag();
}

bool AttachmentEditor::OralToggleVisible() const {
  return oralToggleShown_ && questionList_.visible && AnswerOf(state_.CurrentKind()).oral;
}

std::u16string AttachmentEditor::OralToggleCaption() const {
  return state_.document.Services().strings.Text(oralToggleState_ == 1 ? text_id::kOralOn
                                                                       : text_id::kOralOff);
}

}  // namespace quorvantis
