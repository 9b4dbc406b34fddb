// SPDX-License-Identifier: MIT
#pragma once

#include <QUrl>
#include <QWebEngineUrlRequestInterceptor>
#include <QWebEngineUrlRequestJob>

namespace quorvantis {

/// Stops every request of the browser that would leave the program, and marks those that are for the content
/// of a frame. The mark is a header of the request itself: the same address may be asked for by a frame and
/// by a player at one time, and either request may be given up before it is answered.
class RequestGuard : public QWebEngineUrlRequestInterceptor {
 public:
  using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;

  void interceptRequest(QWebEngineUrlRequestInfo& info) override;

  /// Whether the request that is being answered is for the content of a frame.
  static bool IsForFrame(const QWebEngineUrlRequestJob& job);

  /// An address of the exam, or one that carries its content itself.
  static bool StaysInside(const QUrl& address);
};

}  // namespace quorvantis
