// SPDX-License-Identifier: MIT
#pragma once

#include <QUrl>
#include <QWebEngineUrlRequestInterceptor>

namespace quorvantis {

/// Stops every request of the browser that would leave the program.
class RequestGuard : public QWebEngineUrlRequestInterceptor {
 public:
  using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;

  void interceptRequest(QWebEngineUrlRequestInfo& info) override;

  /// An address of the exam, or one that carries its content itself.
  static bool StaysInside(const QUrl& address);
};

}  // namespace quorvantis
