// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/controls/BackgroundRun.h"
#include "desktop/controls/SharedProgress.h"

#include <QProgressBar>
#include <QTimer>

#include <atomic>
#include <memory>

namespace quorvantis {

/// Shows how far a run is; hidden while there is none.
class RunBar : public QProgressBar {
  Q_OBJECT

 public:
  /// `run` must outlive the bar.
  RunBar(BackgroundRun& run, const QString& spokenName, QWidget* parent);

  /// For the job of the run, on whose thread it is made.
  SharedProgress MakeProgress(const BackgroundRun::Cancelled& isCancelled) const {
    return {done_, isCancelled};
  }

 private:
  void Follow();

  BackgroundRun& run_;
  std::shared_ptr<std::atomic_int> done_ = std::make_shared<std::atomic_int>(0);
  QTimer looks_;
};

}  // namespace quorvantis
