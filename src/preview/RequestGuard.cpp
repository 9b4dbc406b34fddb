// SPDX-License-Identifier: MIT
#include "preview/RequestGuard.h"

#include "preview/BrowserEngine.h"

namespace quorvantis {

void RequestGuard::interceptRequest(QWebEngineUrlRequestInfo& info) {
  if (!StaysInside(info.requestUrl())) info.block(true);
}

bool RequestGuard::StaysInside(const QUrl& address) {
  const QString scheme = address.scheme();
  if (scheme == kExamScheme) return address.host() == kExamHost;
  return scheme == QLatin1String("data") || scheme == QLatin1String("blob") ||
         scheme == QLatin1String("about");
}

}  // namespace quorvantis
