// SPDX-License-Identifier: MIT
#include "desktop/main/commands/HistoryCommands.h"

#include "desktop/controls/QtText.h"
#include "desktop/main/controls/FormFields.h"
#include "history/StepName.h"
#include "model/document/ExamServices.h"
#include "platform/UserDialogs.h"
#include "platform/texts/HistoryTexts.h"
#include "text/MessageText.h"
#include "text/PathText.h"

#include <QApplication>

#include <utility>

namespace quorvantis {
namespace {

QString CaptionOf(const std::optional<ChangeName>& step, int withName, int withoutName,
                  const StringTable& strings) {
  if (!step) return ToQString(strings.Text(withoutName));
  return ToQString(FillMessage(strings.Text(withName), {DescribeChange(*step, strings)}));
}

std::u16string NamesOf(const std::vector<std::filesystem::path>& files) {
  std::u16string names;
  for (const std::filesystem::path& file : files)
    names += (names.empty() ? u"" : u", ") + PathToText(file.filename());
  return names;
}

}  // namespace

HistoryCommands::HistoryCommands(History& history, ExamControls& exam, QuestionControls& question,
                                 AnswerControls& answers, const ExamServices& services)
    : history_(history), exam_(exam), question_(question), answers_(answers), services_(services) {
  connect(this, &HistoryCommands::LookPosted, this, &HistoryCommands::Look, Qt::QueuedConnection);
  connect(qApp, &QApplication::focusChanged, this, &HistoryCommands::EndTyping);
  qApp->installEventFilter(this);
}

void HistoryCommands::Look() {
  lookPosted_ = false;
  history_.Look();
}

/// The next input may come before the look that was posted; it must not become part of the same step.
bool HistoryCommands::eventFilter(QObject* watched, QEvent* event) {
  const QEvent::Type type = event->type();
  const bool isInput = type == QEvent::ShortcutOverride || type == QEvent::KeyPress ||
                       type == QEvent::MouseButtonPress || type == QEvent::InputMethod ||
                       type == QEvent::Drop;
  if (isInput && lookPosted_) Look();
  return QObject::eventFilter(watched, event);
}

bool HistoryCommands::CanUndo() {
  history_.Look();
  return history_.NextUndo().has_value();
}

bool HistoryCommands::CanRedo() {
  history_.Look();
  return history_.NextRedo().has_value();
}

QString HistoryCommands::UndoCaption() const {
  const int nothing = history_.HasForgotten() ? text_id::kUndoForgotten : text_id::kUndo;
  return CaptionOf(history_.NextUndo(), text_id::kUndoStep, nothing, services_.strings);
}

QString HistoryCommands::RedoCaption() const {
  return CaptionOf(history_.NextRedo(), text_id::kRedoStep, text_id::kRedo, services_.strings);
}

void HistoryCommands::Note() {
  if (!std::exchange(lookPosted_, true)) emit LookPosted();
}

/// The user has left a field.
void HistoryCommands::EndTyping() {
  history_.Look();
  history_.EndTyping();
}

void HistoryCommands::Show(const std::optional<HistorySpot>& spot) {
  if (!spot) return;
  if (spot->field) ShowCursor(*spot->field, spot->position);
  if (spot->lostFiles.empty()) return;
  const std::u16string text = services_.strings.Text(text_id::kUndoLostFiles);
  services_.dialogs.ShowWarning(FillMessage(text, {NamesOf(spot->lostFiles)}));
}

void HistoryCommands::ShowCursor(FormField field, std::size_t position) {
  const ShownField shown = FieldShowing(field, exam_, question_, answers_);
  if (!shown.widget->isVisible()) return;
  shown.widget->setFocus();
  shown.field->Select(position, 0);
}

}  // namespace quorvantis
