// SPDX-License-Identifier: MIT
#include "desktop/start/SecondStart.h"

#include <QCryptographicHash>
#include <QLocalSocket>
#include <QStandardPaths>

namespace quorvantis {
namespace {

constexpr int kPatience = 2000;  // milliseconds
constexpr qint64 kLongestMessage = qint64{64} * 1024;
constexpr char kEnd = '\0';  // the one byte that no path contains
constexpr char kTaken = '+';
constexpr char kBusy = '-';

/// A socket in the user's runtime folder. Its path must be short, so it contains a hash of the folder.
QString SocketOf(const std::filesystem::path& folder) {
  std::error_code error;
  const std::string path = std::filesystem::weakly_canonical(folder, error).native();
  const QByteArray hash = QCryptographicHash::hash(
      QByteArrayView(path.data(), static_cast<qsizetype>(path.size())), QCryptographicHash::Sha256);
  return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + "/quorvantis-" +
         hash.first(8).toHex();
}

}  // namespace

SecondStartListener::SecondStartListener(const std::filesystem::path& folder, FirstStart& first)
    : first_(first) {
  connect(&server_, &QLocalServer::newConnection, this, &SecondStartListener::Accept);
  server_.setSocketOptions(QLocalServer::UserAccessOption);
  QLocalServer::removeServer(SocketOf(folder));  // left behind by a killed program
  server_.listen(SocketOf(folder));              // without it, second starts are only turned away
}

void SecondStartListener::Accept() {
  while (QLocalSocket* second = server_.nextPendingConnection()) {
    connect(second, &QLocalSocket::disconnected, second, &QObject::deleteLater);
    connect(second, &QLocalSocket::readyRead, this, [this, second] { Answer(*second); });
  }
}

void SecondStartListener::Answer(QLocalSocket& second) {
  const QByteArray message = second.peek(kLongestMessage);
  if (message.size() == kLongestMessage) second.abort();
  if (!message.endsWith(kEnd)) return;
  second.readAll();
  const std::filesystem::path exam(message.constData());
  const bool taken = exam.empty() || first_.IsFree();
  second.putChar(taken ? kTaken : kBusy);
  second.flush();
  second.disconnectFromServer();
  first_.ComeForward(taken ? exam : std::filesystem::path());
}

HandOverResult HandOverStart(const std::filesystem::path& folder, const std::filesystem::path& exam) {
  QLocalSocket first;
  first.connectToServer(SocketOf(folder));
  if (!first.waitForConnected(kPatience)) return HandOverResult::NoAnswer;
  first.write(exam.c_str(), static_cast<qint64>(exam.native().size()) + 1);
  char answer = 0;
  if (!first.waitForReadyRead(kPatience) || !first.getChar(&answer)) return HandOverResult::NoAnswer;
  return answer == kTaken ? HandOverResult::Taken : HandOverResult::Busy;
}

}  // namespace quorvantis
