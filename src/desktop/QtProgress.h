// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Progress.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QProgressDialog>
#include <QTimer>

#include <memory>

namespace quorvantis {

/// A bar over the main window for work that takes longer than half a second. While it shows, windows are
/// painted but take no input.
class QtProgress : public QObject, public Progress {
  Q_OBJECT

 public:
  QtProgress();
  ~QtProgress() override;

  /// The window that the bar belongs to from now on; it may go before this object does.
  void SetParent(QWidget* parent) { parent_ = parent; }

  void Report(std::uint64_t done, std::uint64_t total) override;

 private:
  void Show(std::uint64_t done, std::uint64_t total);
  void End();

  QPointer<QWidget> parent_;
  std::unique_ptr<QProgressDialog> bar_;
  QElapsedTimer sinceStart_;
  QElapsedTimer sincePaint_;
  QTimer end_;
  bool painting_ = false;
};

}  // namespace quorvantis
