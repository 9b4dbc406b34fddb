// SPDX-License-Identifier: MIT
#pragma once

#include <QDropEvent>
#include <QMimeData>
#include <QString>

#include <functional>
#include <optional>

namespace quorvantis {

/// Questions that are dragged from a list of other exams to a place in the open one. They mean nothing to
/// other programs.
class QuestionDrag : public QMimeData {
  Q_OBJECT

 public:
  /// Inserts them after question `after` of the exam, 0 to 500, or after the one that is shown. What was
  /// done, for a status line; empty if nothing. May show messages, so it is called when the drag has ended.
  using Insert = std::function<QString(std::optional<int> after)>;

  explicit QuestionDrag(Insert insert);

  const Insert& Inserts() const { return insert_; }

  /// The dragged questions; null if something else is dragged.
  static const QuestionDrag* Of(const QDropEvent& event) {
    return qobject_cast<const QuestionDrag*>(event.mimeData());
  }

 private:
  Insert insert_;
};

}  // namespace quorvantis
