// SPDX-License-Identifier: MIT
#include "platform/convert/ProgramRun.h"

#include "platform/convert/Later.h"

#include <QProcess>

#include <csignal>
#include <memory>
#include <sys/resource.h>
#include <unistd.h>
#include <utility>

namespace quorvantis {
namespace {

constexpr int kLowPriority = 10;
constexpr rlim_t kLargestFile = rlim_t{4} << 30;  // what a crafted input could fill the disk with

/// Runs between fork and exec, where only async-signal-safe calls are allowed.
void PrepareChild() {
  ::setsid();
  const rlimit largest{kLargestFile, kLargestFile};
  ::setrlimit(RLIMIT_FSIZE, &largest);
  ::setpriority(PRIO_PROCESS, 0, kLowPriority);
}

/// A process whose whole group is killed with it.
class GroupProcess : public QProcess {
 public:
  explicit GroupProcess(QObject* parent) : QProcess(parent) {
    setChildProcessModifier(PrepareChild);
    setStandardInputFile(nullDevice());
    setStandardErrorFile(nullDevice());
  }
  ~GroupProcess() override {
    disconnect();
    KillGroup();
    waitForFinished();
  }
  GroupProcess(const GroupProcess&) = delete;
  GroupProcess& operator=(const GroupProcess&) = delete;

  /// Only while the leader lives or is not reaped: afterwards its number may belong to somebody else.
  void KillGroup() {
    if (processId() > 0) ::kill(-static_cast<pid_t>(processId()), SIGKILL);
  }
};

}  // namespace

void RunProgram(QObject& owner, const ProgramOrder& order, ProgramDone done) {
  auto* const process = new GroupProcess(&owner);
  const auto report = [process, once = std::make_shared<ProgramDone>(std::move(done))](bool succeeded) {
    const ProgramDone call = std::exchange(*once, nullptr);
    process->deleteLater();
    if (call) call(succeeded, process->isOpen() ? process->readAllStandardOutput() : QByteArray());
  };
  QObject::connect(process, &QProcess::finished, process, [report](int code, QProcess::ExitStatus status) {
    report(status == QProcess::NormalExit && code == 0);
  });
  QObject::connect(process, &QProcess::errorOccurred, process, [report](QProcess::ProcessError error) {
    if (error == QProcess::FailedToStart) report(false);
  });
  if (order.program.isEmpty()) {
    Later(*process, {}, [report] { report(false); });
    return;
  }
  Later(*process, order.limit, [process] { process->KillGroup(); });
  // A program that cannot be started reports that from inside start(), which the caller would not expect.
  Later(*process, {}, [process, order] { process->start(order.program, order.arguments); });
}

}  // namespace quorvantis
