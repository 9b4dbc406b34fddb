// SPDX-License-Identifier: MIT
// Answers to a request of the browser.
#pragma once

#include <QByteArray>

#include <filesystem>

class QWebEngineUrlRequestJob;

namespace quorvantis {

void ReplyWithBytes(QWebEngineUrlRequestJob& job, const QByteArray& type, const QByteArray& bytes);

/// A page in UTF-8, whatever encoding it claims.
void ReplyWithPage(QWebEngineUrlRequestJob& job, const QByteArray& utf8);

/// The file unchanged, streamed to the browser.
void ReplyWithFile(QWebEngineUrlRequestJob& job, const QByteArray& type, const std::filesystem::path& file);

}  // namespace quorvantis
