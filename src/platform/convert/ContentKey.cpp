// SPDX-License-Identifier: MIT
#include "platform/convert/ContentKey.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>

namespace quorvantis {
namespace {

constexpr qint64 kHashedWhole = qint64{16} << 20;
constexpr qint64 kHashedEnd = qint64{1} << 20;

}  // namespace

QString ContentKey(const std::filesystem::path& file) {
  QFile in(file);
  if (!in.open(QIODevice::ReadOnly)) return {};
  QCryptographicHash hash(QCryptographicHash::Blake2b_160);
  if (in.size() <= kHashedWhole) {
    if (!hash.addData(&in)) return {};
  } else {
    hash.addData(QByteArray::number(in.size()));
    hash.addData(QByteArray::number(QFileInfo(in).lastModified().toMSecsSinceEpoch()));
    hash.addData(in.read(kHashedEnd));
    in.seek(in.size() - kHashedEnd);
    hash.addData(in.read(kHashedEnd));
  }
  return QString::fromLatin1(hash.result().toHex());
}

}  // namespace quorvantis
