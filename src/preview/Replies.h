// SPDX-License-Identifier: MIT
// Answers to a request of the browser.
#pragma once

#include <QByteArray>

#include <filesystem>

class QWebEngineUrlRequestJob;

namespace quorvantis {

void ReplyWithBytes(QWebEngineUrlRequestJob& job, const QByteArray& type, const QByteArray& bytes);

/// A page in UTF-8, whatever it says about itself.
void ReplyWithPage(QWebEngineUrlRequestJob& job, const QByteArray& utf8);

/// The file as it is, read while the browser takes it.
void ReplyWithFile(QWebEngineUrlRequestJob& job, const QByteArray& type, const std::filesystem::path& file);

}  // namespace quorvantis
