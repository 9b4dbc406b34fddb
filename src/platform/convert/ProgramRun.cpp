// SPDX-License-Identifier: MIT
#include "platform/convert/ProgramRun.h"

#include "platform/convert/Later.h"
#include "platform/programs/ChildProcess.h"

#include <QFile>
#include <QTimer>

#include <memory>
#include <utility>

namespace quorvantis {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::uintmax_t kLargestFile = std::uintmax_t{4} << 30;  // bytes; a film may be long
constexpr qsizetype kMostOutput = qsizetype{1} << 20;             // anything after that is useless

std::string ToArgument(const QString& text) {
  return QFile::encodeName(text).toStdString();
}

ChildOrder ChildOrderOf(const ProgramOrder& order) {
  ChildOrder child{ToArgument(order.program), {}, ToArgument(order.temporaryFolder), kLargestFile, true};
  for (const QString& argument : order.arguments) child.arguments.push_back(ToArgument(argument));
  return child;
}

/// Watches the output of a program for progress.
class ProgressWatch {
 public:
  explicit ProgressWatch(ProgressSigns signs) : signs_(std::move(signs)) {}

  void Take(const QByteArray& output) {
    begun_ += output;
    for (qsizetype end = 0; (end = begun_.indexOf('\n')) >= 0; begun_.remove(0, end + 1)) {
      QByteArray line = begun_.first(end);
      if (!line.startsWith(signs_.mark) || line == last_) continue;
      last_ = std::move(line);
      lastTime_ = Clock::now();
    }
    if (begun_.size() > kMostOutput) begun_.clear();
  }

  bool HasLostPatience() const { return Clock::now() > lastTime_ + signs_.patience; }

 private:
  const ProgressSigns signs_;
  QByteArray begun_;  ///< the incomplete last line
  QByteArray last_;
  Clock::time_point lastTime_ = Clock::now();
};

/// A running program. Deletes itself after its report.
class ProgramRun : public QObject {
 public:
  ProgramRun(QObject& owner, ProgramOrder order, ProgramDone done)
      : QObject(&owner), order_(std::move(order)), done_(std::move(done)) {
    connect(&looks_, &QTimer::timeout, this, &ProgramRun::Look);
  }

  void Start() {
    deadline_ = Clock::now() + order_.limit;
    if (order_.progress) watch_.emplace(*order_.progress);
    child_ = ChildProcess::Start(ChildOrderOf(order_));
    if (child_ == nullptr) return Report(false);
    looks_.start(kBetweenLooksAtPrograms);
  }

 private:
  void Look() {
    const std::optional<ChildEnd> end = child_->End();
    TakeOutput();
    if (end) return Report(*end == ChildEnd::Succeeded);
    if (Clock::now() > deadline_ || (watch_ && watch_->HasLostPatience())) Report(false);
  }

  void TakeOutput() {
    const QByteArray output = QByteArray::fromStdString(child_->ReadOutput());
    if (watch_) return watch_->Take(output);
    if (output_.size() < kMostOutput) output_ += output;
  }

  /// The call may destroy the owner, and this object with it.
  void Report(bool succeeded) {
    looks_.stop();
    child_.reset();
    deleteLater();
    const ProgramDone done = std::exchange(done_, nullptr);
    const QByteArray output = std::move(output_);
    done(succeeded, output);
  }

  const ProgramOrder order_;
  ProgramDone done_;
  QTimer looks_;
  Clock::time_point deadline_;
  std::optional<ProgressWatch> watch_;
  QByteArray output_;
  std::unique_ptr<ChildProcess> child_;
};

}  // namespace

QString FileArgument(const std::filesystem::path& file) {
  return QFile::decodeName(file.c_str());
}

QStringList ProgramArguments(const std::vector<std::string>& arguments) {
  QStringList list;
  for (const std::string& argument : arguments) list << FileArgument(argument);
  return list;
}

void RunProgram(QObject& owner, const ProgramOrder& order, ProgramDone done) {
  auto* const run = new ProgramRun(owner, order, std::move(done));
  Later(*run, {}, [run] { run->Start(); });
}

}  // namespace quorvantis
