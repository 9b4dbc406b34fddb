// SPDX-License-Identifier: MIT
#include "desktop/dialogs/QtProgress.h"

#include <QApplication>
#include <QScopedValueRollback>

#include <algorithm>

namespace quorvantis {
namespace {

constexpr int kPatience = 500;      // milliseconds until the bar appears
constexpr int kPaintInterval = 50;  // and between its steps
constexpr int kSteps = 1000;

/// Without steps the bar only shows activity; without a caption there is no button.
std::unique_ptr<QProgressDialog> MakeBar(const QString& cancelCaption, int steps, QWidget* parent) {
  auto bar = std::make_unique<QProgressDialog>(QString(), cancelCaption, 0, steps, parent);
  bar->setWindowModality(Qt::ApplicationModal);
  bar->setAutoClose(false);
  bar->setAutoReset(false);
  bar->show();
  return bar;
}

}  // namespace

/// Nobody reports the end of work: it is over once the event loop runs by itself.
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
  if (!bar_) bar_ = MakeBar(QString(), kSteps, parent_);
  const double part = static_cast<double>(std::min(done, total)) / static_cast<double>(total);
  const QScopedValueRollback painting(painting_, true);
  bar_->setValue(static_cast<int>(part * kSteps));  // which handles events, since the bar is modal
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void QtProgress::Wait() {
  if (painting_) return;
  if (!waiting_) BeginWaiting();
  const QScopedValueRollback painting(painting_, true);
  QCoreApplication::processEvents();
}

/// The dialog stays after a cancel: it blocks all other input until the work has ended.
void QtProgress::BeginWaiting() {
  QApplication::setOverrideCursor(Qt::WaitCursor);
  cancelled_ = false;
  waiting_ = MakeBar(QProgressDialog::tr("Cancel"), 0, parent_);
  waiting_->setObjectName("waiting");
  disconnect(waiting_.get(), &QProgressDialog::canceled, waiting_.get(), &QProgressDialog::cancel);
  connect(waiting_.get(), &QProgressDialog::canceled, this, [this] { cancelled_ = true; });
  end_.start();
}

void QtProgress::End() {
  end_.stop();
  if (waiting_) QApplication::restoreOverrideCursor();
  waiting_.reset();
  cancelled_ = false;
  bar_.reset();
  sinceStart_.invalidate();
}

}  // namespace quorvantis
