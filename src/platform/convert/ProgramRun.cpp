// SPDX-License-Identifier: MIT
#include "platform/convert/ProgramRun.h"

#include "platform/convert/Later.h"

#include <QFile>
#include <QProcess>
#include <QTimer>

#include <csignal>
#include <memory>
#include <sys/prctl.h>
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
  ::prctl(PR_SET_PDEATHSIG, SIGKILL);  // if this program is killed, which ends no process group
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

  void UseTemporaryFolder(const QString& folder) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("TMPDIR", folder);
    setProcessEnvironment(environment);
  }

  /// Kills the group when it shows no sign of progress any more.
  void Watch(const ProgressSigns& signs) {
    auto* const patience = new QTimer(this);
    patience->setSingleShot(true);
    connect(patience, &QTimer::timeout, this, &GroupProcess::KillGroup);
    connect(this, &QProcess::started, patience, [patience, signs] { patience->start(signs.patience); });
    connect(this, &QProcess::readyReadStandardOutput, patience,
            [this, patience, mark = signs.mark, last = QByteArray()]() mutable {
              while (canReadLine()) {
                QByteArray line = readLine();
                if (!line.startsWith(mark) || line == last) continue;
                last = std::move(line);
                patience->start();
              }
            });
  }
};

}  // namespace

QString FileArgument(const std::filesystem::path& file) {
  return QFile::decodeName(file.c_str());
}

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
  if (order.progress) process->Watch(*order.progress);
  if (!order.temporaryFolder.isEmpty()) process->UseTemporaryFolder(order.temporaryFolder);
  Later(*process, order.limit, [process] { process->KillGroup(); });
  // A program that cannot be started reports that from inside start(), which the caller would not expect.
  Later(*process, {}, [process, order] { process->start(order.program, order.arguments); });
}

}  // namespace quorvantis
