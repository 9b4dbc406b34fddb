// SPDX-License-Identifier: MIT
#include "desktop/controls/Pictures.h"

#include <QPixmap>

namespace quorvantis {
namespace {

QPixmap FromPng(std::span<const std::byte> png) {
  QPixmap picture;
  picture.loadFromData(reinterpret_cast<const uchar*>(png.data()), static_cast<uint>(png.size()), "PNG");
  return picture;
}

QPixmap BuiltIn(const QString& name, int scale) {
  return QPixmap(QStringLiteral(":/bitmaps/%1@%2x.png").arg(name).arg(scale));
}

}  // namespace

QIcon Pictures::Picture(const QString& name) const {
  QIcon picture;
  for (const int scale : {1, 2}) {
    QPixmap bitmap = Bitmap(name, scale);
    bitmap.setDevicePixelRatio(scale);
    if (!bitmap.isNull()) picture.addPixmap(bitmap);
  }
  return picture;
}

/// A language's picture in only one size is not mixed with the built-in one: Qt scales it.
QPixmap Pictures::Bitmap(const QString& name, int scale) const {
  if (library_ == nullptr) return BuiltIn(name, scale);
  const std::string key = name.toStdString();
  const QPixmap own = FromPng(library_->Bitmap(key, scale));
  const bool hasOther = !library_->Bitmap(key, scale == 1 ? 2 : 1).empty();
  return own.isNull() && !hasOther ? BuiltIn(name, scale) : own;
}

}  // namespace quorvantis
