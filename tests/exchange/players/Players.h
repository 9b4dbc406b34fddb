// SPDX-License-Identifier: MIT
// Programs of others that scripts/install-exchange-players installs.
#pragma once

#include <QByteArray>
#include <QJsonDocument>
#include <QProcess>
#include <QString>
#include <QStringList>

#include <filesystem>

namespace quorvantis::test {

/// Where they are; they may be missing.
inline const std::filesystem::path kPlayers = QUORVANTIS_PLAYERS;
inline const std::filesystem::path kPlayerScripts = QUORVANTIS_PROJECT "/tests/exchange/players";

inline bool HasPlayers() {
  return std::filesystem::exists(kPlayers / "package-lock.json");
}

inline QString PlayerPath(const std::filesystem::path& path) {
  return QString::fromStdString(path.string());
}

/// What a script prints, which is JSON; null if it fails.
inline QJsonDocument RunNode(const std::filesystem::path& script, const QStringList& arguments,
                             const QByteArray& input = {}) {
  QProcess node;
  node.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  node.start("node", QStringList(PlayerPath(script)) + arguments);
  node.write(input);
  node.closeWriteChannel();
  constexpr int kLongest = 240'000;  // in milliseconds, on a busy machine
  if (!node.waitForFinished(kLongest) || node.exitCode() != 0) return {};
  return QJsonDocument::fromJson(node.readAllStandardOutput());
}

}  // namespace quorvantis::test
