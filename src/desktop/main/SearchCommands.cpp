// SPDX-License-Identifier: MIT
#include "desktop/main/SearchCommands.h"

#include "desktop/main/FormFields.h"

#include <QTextCursor>

#include <optional>

namespace quorvantis {
namespace {

constexpr int kLongestQuery = 200;  // of a selection; a longer one is hardly meant to be searched for

std::optional<FormField> FieldOf(const TextPlace& place) {
  switch (place.field) {
    case ExamFieldName::Title:
      return FormField::Title;
    case ExamFieldName::QuestionText:
      return FormField::Text;
    case ExamFieldName::Options:
      return OptionField(place.index);
    case ExamFieldName::FillInAnswer:
      return FormField::Answer;
    case ExamFieldName::EssayAnswer:
      return FormField::Essay;
    default:
      return std::nullopt;
  }
}

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
  const std::optional<FormField> field = FieldOf(hit.place);
  if (!field) return;
  const ShownField shown = FieldShowing(*field, exam_, question_, answers_);
  shown.widget->setFocus();
  shown.field->Select(hit.start, hit.length);
}

}  // namespace quorvantis
