// SPDX-License-Identifier: MIT
#include "preview/RequestGuard.h"

#include "preview/BrowserEngine.h"

#include <QByteArray>
#include <QMap>

namespace quorvantis {
namespace {

constexpr char kFrameMark[] = "X-Quorvantis-Frame";

}  // namespace

void RequestGuard::interceptRequest(QWebEngineUrlRequestInfo& info) {
  if (!StaysInside(info.requestUrl())) return info.block(true);
  const bool forFrame = info.resourceType() == QWebEngineUrlRequestInfo::ResourceTypeSubFrame;
  if (forFrame && info.requestUrl().scheme() == kExamScheme) info.setHttpHeader(kFrameMark, "1");
}

bool RequestGuard::IsForFrame(const QWebEngineUrlRequestJob& job) {
  return job.requestHeaders().contains(kFrameMark);
}

bool RequestGuard::StaysInside(const QUrl& address) {
  const QString scheme = address.scheme();
  if (scheme == kExamScheme) return address.host() == kExamHost;
  return scheme == QLatin1String("data") || scheme == QLatin1String("blob") ||
         scheme == QLatin1String("about");
}

}  // namespace quorvantis
