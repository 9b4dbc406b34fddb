// SPDX-License-Identifier: MIT
#include "preview/AttachedText.h"

#include "platform/posix/IconvCodePage.h"

#include <QStringDecoder>

#include <optional>

namespace quorvantis {

QString DecodeAttachedText(const QByteArray& bytes) {
  const std::optional<QStringConverter::Encoding> marked = QStringConverter::encodingForData(bytes);
  QStringDecoder decoder(marked.value_or(QStringConverter::Utf8));
  QString text = decoder.decode(bytes);
  if (marked || !decoder.hasError()) return text;
  const IconvCodePage chinese("GB18030");
  return QString::fromStdU16String(chinese.Decode({bytes.data(), static_cast<std::size_t>(bytes.size())}));
}

}  // namespace quorvantis
