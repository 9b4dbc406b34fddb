// SPDX-License-Identifier: MIT
#include "preview/Replies.h"

#include <QBuffer>
#include <QFile>
#include <QWebEngineUrlRequestJob>

#include <memory>

namespace quorvantis {

void ReplyWithBytes(QWebEngineUrlRequestJob& job, const QByteArray& type, const QByteArray& bytes) {
  auto* const buffer = new QBuffer(&job);
  buffer->setData(bytes);
  buffer->open(QIODevice::ReadOnly);
  job.reply(type, buffer);
}

/// Without a charset the browser would assume Western for a page that does not name one.
void ReplyWithPage(QWebEngineUrlRequestJob& job, const QByteArray& utf8) {
  ReplyWithBytes(job, "text/html; charset=utf-8", utf8);
}

void ReplyWithFile(QWebEngineUrlRequestJob& job, const QByteArray& type, const std::filesystem::path& file) {
  auto device = std::make_unique<QFile>(file);
  if (!device->open(QIODevice::ReadOnly)) return job.fail(QWebEngineUrlRequestJob::UrlNotFound);
  device->setParent(&job);
  job.reply(type, device.release());
}

}  // namespace quorvantis
