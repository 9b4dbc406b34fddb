// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Progress.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QProgressDialog>
#include <QTimer>

#include <memory>

namespace quorvantis {

/// A bar over the main window for work that takes longer than half a second, and at once while another
/// program is waited for. While it shows, windows are painted but take no input; only waiting can be
/// cancelled.
class QtProgress : public QObject, public Progress {
  Q_OBJECT

 public:
  QtProgress();
  ~QtProgress() override;

  /// The window that the bar belongs to from now on; it may go before this object does.
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
  std::unique_ptr<QProgressDialog> waiting_;  ///< while it is there, so is the wait cursor
  QElapsedTimer sinceStart_;
  QElapsedTimer sincePaint_;
  QTimer end_;
  bool painting_ = false;  ///< events are being handled in the middle of the work
  bool cancelled_ = false;
};

}  // namespace quorvantis
