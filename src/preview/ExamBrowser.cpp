// SPDX-License-Identifier: MIT
#include "preview/ExamBrowser.h"

#include "preview/BrowserEngine.h"

#include <QWebEngineScriptCollection>

namespace quorvantis {

ExamBrowser::ExamBrowser(const GatewaySetup& setup, const QWebEngineScript& script) : gateway_(setup) {
  profile_.setUrlRequestInterceptor(&guard_);
  profile_.installUrlSchemeHandler(QByteArray(kExamScheme.data()), &gateway_);
  profile_.scripts()->insert(script);
}

}  // namespace quorvantis
