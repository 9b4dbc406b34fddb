// SPDX-License-Identifier: MIT
#pragma once

#include <QSet>
#include <QUrl>
#include <QWebEngineUrlRequestInterceptor>

namespace quorvantis {

/// Stops every request of the browser that would leave the program, and knows what the others are for.
class RequestGuard : public QWebEngineUrlRequestInterceptor {
 public:
  using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;

  void interceptRequest(QWebEngineUrlRequestInfo& info) override;

  /// Whether the request for `address` that is being answered is for the content of a frame. Each request is
  /// to be asked for once.
  bool TakeForFrame(const QUrl& address);

  /// An address of the exam, or one that carries its content itself.
  static bool StaysInside(const QUrl& address);

 private:
  QSet<QUrl> forFrames_;  ///< asked for and not answered yet
};

}  // namespace quorvantis
