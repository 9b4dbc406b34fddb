// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace quorvantis {

/// A warning that stands in the window as long as its reason lasts. It takes no place from other controls and
/// keeps nobody from typing.
class WarningNotice : public QWidget {
  Q_OBJECT

 public:
  WarningNotice(const char* name, QWidget* parent);

  /// Shows `text`, with `details` as its tooltip. Screen readers are told once, when it appears.
  void Tell(const QString& text, const QString& details);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace quorvantis
