// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace quorvantis {

/// A warning that stays in the window as long as its cause does. It takes no room from other controls and
/// does not interrupt typing.
class WarningNotice : public QWidget {
  Q_OBJECT

 public:
  WarningNotice(const char* name, QWidget* parent);

  /// Shows `text`, with `details` as its tooltip. Screen readers announce it once, when it appears.
  void Tell(const QString& text, const QString& details);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace quorvantis
