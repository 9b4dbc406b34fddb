// SPDX-License-Identifier: MIT
#include "preview/PageAddress.h"

#include "preview/BrowserEngine.h"

namespace quorvantis {
namespace {

namespace fs = std::filesystem;

/// No file of an exam is there.
constexpr std::string_view kOwnFolder = "/.quorvantis/";

QUrl Address(const QByteArray& escapedPath) {
  return QUrl::fromEncoded(QByteArray(kExamScheme.data()) + "://" + kExamHost.data() + escapedPath);
}

}  // namespace

QByteArray EscapedPath(const fs::path& path) {
  return QByteArray::fromStdString(path.native()).toPercentEncoding("/~");
}

QUrl AddressOf(const fs::path& file) {
  return Address(EscapedPath(file));
}

QUrl OwnAddress(std::string_view name) {
  return Address(EscapedPath(std::string(kOwnFolder) + std::string(name)));
}

/// Escapes decode to bytes, not to text: a file name need not be valid UTF-8.
std::optional<fs::path> FileOf(const QUrl& address) {
  if (address.scheme() != kExamScheme || address.host() != kExamHost) return std::nullopt;
  const QByteArray bytes = QByteArray::fromPercentEncoding(address.path(QUrl::FullyEncoded).toUtf8());
  if (!bytes.startsWith('/') || bytes.contains('\0')) return std::nullopt;
  return fs::path(bytes.toStdString()).lexically_normal();
}

std::optional<fs::path> OwnNameOf(const QUrl& address) {
  const std::optional<fs::path> file = FileOf(address);
  if (!file || file->native().compare(0, kOwnFolder.size(), kOwnFolder) != 0) return std::nullopt;
  return fs::path(file->native().substr(kOwnFolder.size()));
}

}  // namespace quorvantis
