// SPDX-License-Identifier: MIT
#include "desktop/main/commands/SearchCommands.h"

#include "desktop/main/controls/ShownPlace.h"

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
  ExamField* field = ShowPlace(hit.place, editor_, {exam_, question_, answers_});
  if (field != nullptr) field->Select(hit.start, hit.length);
}

}  // namespace quorvantis
