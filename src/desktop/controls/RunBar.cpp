// SPDX-License-Identifier: MIT
#include "desktop/controls/RunBar.h"

#include "desktop/controls/Controls.h"

#include <chrono>

namespace quorvantis {
namespace {

constexpr std::chrono::milliseconds kBetweenLooksAtRun(50);

}  // namespace

RunBar::RunBar(BackgroundRun& run, const QString& spokenName, QWidget* parent)
    : QProgressBar(parent), run_(run) {
  NameControl(this, "runProgress", spokenName);
  setRange(0, SharedProgress::kWhole);
  hide();
  connect(&looks_, &QTimer::timeout, this, [this] { setValue(*done_); });
  connect(&run, &BackgroundRun::Changed, this, &RunBar::Follow);
}

void RunBar::Follow() {
  setVisible(run_.IsRunning());
  if (!run_.IsRunning()) return looks_.stop();
  *done_ = 0;
  setValue(0);
  looks_.start(kBetweenLooksAtRun);
}

}  // namespace quorvantis
