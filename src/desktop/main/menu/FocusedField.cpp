// SPDX-License-Identifier: MIT
#include "desktop/main/menu/FocusedField.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>

namespace quorvantis {
namespace {

/// Calls `use` with the field as the class that it is; the two have no base class in common, but the same
/// functions.
template <class Result, class Use>
Result UseField(QWidget* field, const Use& use) {
  if (auto* const line = qobject_cast<QLineEdit*>(field)) return use(*line);
  if (auto* const lines = qobject_cast<QPlainTextEdit*>(field)) return use(*lines);
  return Result();
}

bool Selects(const QLineEdit& line) {
  return line.hasSelectedText();
}

bool Selects(const QPlainTextEdit& lines) {
  return lines.textCursor().hasSelection();
}

bool IsEmpty(const QLineEdit& line) {
  return line.text().isEmpty();
}

bool IsEmpty(const QPlainTextEdit& lines) {
  return lines.document()->isEmpty();
}

bool Pastes(const QLineEdit&) {
  const QMimeData* const data = QApplication::clipboard()->mimeData();
  return data != nullptr && data->hasText();
}

bool Pastes(const QPlainTextEdit& lines) {
  return lines.canPaste();
}

}  // namespace

FocusedField::FocusedField(const QWidget& area) : area_(area) {
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* focused) { Follow(focused); });
}

/// The focus leaves the area for a menu, a dialog or another program, and comes back.
void FocusedField::Follow(QWidget* focused) {
  if (focused == nullptr || !area_.isAncestorOf(focused)) return;
  const bool isField =
      qobject_cast<QLineEdit*>(focused) != nullptr || qobject_cast<QPlainTextEdit*>(focused) != nullptr;
  field_ = isField ? focused : nullptr;
}

bool FocusedField::HasSelection() const {
  return UseField<bool>(field_, [](const auto& field) { return Selects(field); });
}

bool FocusedField::CanPaste() const {
  return UseField<bool>(field_, [](const auto& field) { return Pastes(field); });
}

bool FocusedField::HasText() const {
  return UseField<bool>(field_, [](const auto& field) { return !IsEmpty(field); });
}

void FocusedField::Cut() {
  UseField<void>(field_, [](auto& field) { field.cut(); });
}

void FocusedField::Copy() {
  UseField<void>(field_, [](auto& field) { field.copy(); });
}

void FocusedField::Paste() {
  UseField<void>(field_, [](auto& field) { field.paste(); });
}

void FocusedField::SelectAll() {
  UseField<void>(field_, [](auto& field) { field.selectAll(); });
}

}  // namespace quorvantis
