// SPDX-License-Identifier: MIT
#pragma once

#include <QUrl>
#include <QWebEngineUrlRequestInterceptor>
#include <QWebEngineUrlRequestJob>

namespace quorvantis {

/// Blocks every request of the browser that would leave the program, and marks those for the content of a
/// frame. The mark is a header of the request itself: a frame and a player may request one address at the
/// same time, and either may give up before the answer.
class RequestGuard : public QWebEngineUrlRequestInterceptor {
 public:
  using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;

  void interceptRequest(QWebEngineUrlRequestInfo& info) override;

  /// Whether this request is for the content of a frame.
  static bool IsForFrame(const QWebEngineUrlRequestJob& job);

  /// An address of the exam, or one that contains its content.
  static bool StaysInside(const QUrl& address);
};

}  // namespace quorvantis
