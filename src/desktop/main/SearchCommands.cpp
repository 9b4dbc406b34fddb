// SPDX-License-Identifier: MIT
#include "desktop/main/SearchCommands.h"

#include <QShortcut>
#include <QTextCursor>

namespace quorvantis {
namespace {

constexpr int kLongestQuery = 200;  // of a selection; a longer one is hardly meant to be searched for

/// So that only the hit that is shown is selected.
void Deselect(QWidget* field) {
  if (auto* line = qobject_cast<QLineEdit*>(field)) line->deselect();
  if (auto* lines = qobject_cast<QPlainTextEdit*>(field)) {
    QTextCursor cursor = lines->textCursor();
    cursor.clearSelection();
    lines->setTextCursor(cursor);
  }
}

}  // namespace

SearchCommands::SearchCommands(ExamEditor& editor, ExamControls& exam, QuestionControls& question,
                               AnswerControls& answers, QWidget& window)
    : editor_(editor), exam_(exam), question_(question), answers_(answers), window_(window) {
  const auto addKey = [&](const QKeySequence& key, void (SearchCommands::*command)()) {
    QObject::connect(new QShortcut(key, &window), &QShortcut::activated, &window,
                     [this, command] { (this->*command)(); });
  };
  addKey(Qt::CTRL | Qt::Key_F, &SearchCommands::Find);
  addKey(Qt::CTRL | Qt::Key_H, &SearchCommands::Replace);
  addKey(Qt::Key_F3, &SearchCommands::FindNext);
  addKey(Qt::SHIFT | Qt::Key_F3, &SearchCommands::FindPrevious);
}

SearchWindow& SearchCommands::Window() {
  if (search_ == nullptr)
    search_ = new SearchWindow(
        editor_, [this](const SearchHit& hit) { ShowHit(hit); }, &window_);
  return *search_;
}

QString SearchCommands::SelectedText() const {
  if (!window_.isActiveWindow()) return {};  // the window for find and replace has a query already
  QString text;
  if (const auto* line = qobject_cast<QLineEdit*>(window_.focusWidget())) text = line->selectedText();
  if (const auto* field = qobject_cast<QPlainTextEdit*>(window_.focusWidget()))
    text = field->textCursor().selectedText();
  const bool isOneLine = !text.contains(QChar::ParagraphSeparator);
  return isOneLine && text.size() <= kLongestQuery ? text : QString();
}

/// `widget` becomes the control of the place.
ExamField* SearchCommands::FieldOf(const TextPlace& place, QWidget*& widget) const {
  const auto take = [&widget](auto* field) -> ExamField* {
    widget = field;
    return field;
  };
  switch (place.field) {
    case ExamFieldName::Title:
      return take(exam_.title);
    case ExamFieldName::QuestionText:
      return take(question_.text);
    case ExamFieldName::Options:
      return take(answers_.options[place.index]);
    case ExamFieldName::FillInAnswer:
      return take(answers_.answer);
    case ExamFieldName::EssayAnswer:
      return take(answers_.essay);
    default:
      return nullptr;
  }
}

void SearchCommands::ShowHit(const SearchHit& hit) {
  Deselect(window_.focusWidget());
  const int question = hit.place.question;
  if (question != 0 && question != editor_.state.CurrentQuestion()) editor_.questions.GoTo(question);
  if (hit.place.field == ExamFieldName::AttachmentName) {
    AttachmentListBox* list = question == 0 ? exam_.attachments : question_.attachments;
    list->setFocus();
    list->setCurrentRow(static_cast<int>(hit.place.index));
    return;
  }
  QWidget* widget = nullptr;
  ExamField* field = FieldOf(hit.place, widget);
  if (field == nullptr) return;
  widget->setFocus();
  field->Select(hit.start, hit.length);
}

}  // namespace quorvantis
