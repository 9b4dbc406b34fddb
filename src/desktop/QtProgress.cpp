// SPDX-License-Identifier: MIT
#include "desktop/QtProgress.h"

#include <QCoreApplication>

#include <algorithm>

namespace quorvantis {
namespace {

constexpr int kPatience = 500;      // milliseconds until the bar appears
constexpr int kPaintInterval = 50;  // and between its steps
constexpr int kSteps = 1000;

}  // namespace

/// Nobody says when work ends: it has, once the event loop turns by itself.
QtProgress::QtProgress() {
  end_.setInterval(0);
  connect(&end_, &QTimer::timeout, this, [this] {
    if (!painting_) End();
  });
}

QtProgress::~QtProgress() = default;

void QtProgress::Report(std::uint64_t done, std::uint64_t total) {
  if (!sinceStart_.isValid()) {
    sinceStart_.start();
    sincePaint_.start();
    end_.start();
  }
  if (painting_ || total == 0 || !sinceStart_.hasExpired(kPatience) ||
      !sincePaint_.hasExpired(kPaintInterval))
    return;
  sincePaint_.start();
  Show(done, total);
}

void QtProgress::Show(std::uint64_t done, std::uint64_t total) {
  painting_ = true;
  if (!bar_) {
    bar_ = std::make_unique<QProgressDialog>(QString(), QString(), 0, kSteps, parent_);
    bar_->setWindowModality(Qt::ApplicationModal);
    bar_->setAutoClose(false);
    bar_->setAutoReset(false);
    bar_->show();
  }
  const double part = static_cast<double>(std::min(done, total)) / static_cast<double>(total);
  bar_->setValue(static_cast<int>(part * kSteps));
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  painting_ = false;
}

void QtProgress::End() {
  end_.stop();
  bar_.reset();
  sinceStart_.invalidate();
}

}  // namespace quorvantis
