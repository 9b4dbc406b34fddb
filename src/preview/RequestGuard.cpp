// SPDX-License-Identifier: MIT
#include "preview/RequestGuard.h"

#include "preview/BrowserEngine.h"

namespace quorvantis {

void RequestGuard::interceptRequest(QWebEngineUrlRequestInfo& info) {
  if (!StaysInside(info.requestUrl())) return info.block(true);
  const bool forFrame = info.resourceType() == QWebEngineUrlRequestInfo::ResourceTypeSubFrame;
  if (forFrame && info.requestUrl().scheme() == kExamScheme) {
    forFrames_.insert(info.requestUrl().adjusted(QUrl::RemoveFragment));
  }
}

bool RequestGuard::TakeForFrame(const QUrl& address) {
  return forFrames_.remove(address.adjusted(QUrl::RemoveFragment));
}

bool RequestGuard::StaysInside(const QUrl& address) {
  const QString scheme = address.scheme();
  if (scheme == kExamScheme) return address.host() == kExamHost;
  return scheme == QLatin1String("data") || scheme == QLatin1String("blob") ||
         scheme == QLatin1String("about");
}

}  // namespace quorvantis
