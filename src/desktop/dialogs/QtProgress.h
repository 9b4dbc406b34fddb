// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Progress.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QProgressDialog>
#include <QTimer>

#include <memory>

namespace quorvantis {

/// A bar over the main window for work that takes longer than half a second; while waiting for another
/// program it appears at once. While it is shown, windows are painted but accept no input; only waiting can
/// be cancelled.
class QtProgress : public QObject, public Progress {
  Q_OBJECT

 public:
  QtProgress();
  ~QtProgress() override;

  /// Sets the window that the bar belongs to; it may go before this object.
  void SetParent(QWidget* parent) { parent_ = parent; }

  void Report(std::uint64_t done, std::uint64_t total) override;
  void Wait() override;
  bool IsCancelled() override { return cancelled_; }

 private:
  void Show(std::uint64_t done, std::uint64_t total);
  void BeginWaiting();
  void End();

  QPointer<QWidget> parent_;
  std::unique_ptr<QProgressDialog> bar_;
  std::unique_ptr<QProgressDialog> waiting_;  ///< while it exists, the wait cursor is shown
  QElapsedTimer sinceStart_;
  QElapsedTimer sincePaint_;
  QTimer end_;
  bool painting_ = false;  ///< events are being handled in the middle of the work
  bool cancelled_ = false;
};

}  // namespace quorvantis
