// SPDX-License-Identifier: MIT
#include "preview/FileKind.h"

#include <QFile>

namespace quorvantis {
namespace {

const FileKindRow& KindRowOf(const std::filesystem::path& file) {
  return FileKindOf(ExtensionOf(file).toStdU16String());
}

}  // namespace

QString ExtensionOf(const std::filesystem::path& file) {
  const QString name = QFile::decodeName(file.filename().c_str());
  const qsizetype dot = name.lastIndexOf('.');
  return dot < 0 ? QString() : name.mid(dot + 1).toLower();
}

FileKind KindOf(const std::filesystem::path& file) {
  return KindRowOf(file).kind;
}

QByteArray ContentTypeOf(const std::filesystem::path& file) {
  const std::string_view type = KindRowOf(file).contentType;
  return {type.data(), static_cast<qsizetype>(type.size())};
}

}  // namespace quorvantis
