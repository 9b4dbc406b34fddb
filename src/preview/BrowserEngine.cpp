// SPDX-License-Identifier: MIT
#include "preview/BrowserEngine.h"

#include <QByteArray>
#include <QWebEngineUrlScheme>

#include <unistd.h>

namespace quorvantis {
namespace {

constexpr char kFlagsVariable[] = "QTWEBENGINE_CHROMIUM_FLAGS";

/// What no interceptor sees: packets of WebRTC and WebTransport, relays of WebRTC, and host lookups for them.
/// No host resolves here, not even a numeric address.
constexpr char kNoNetwork[] =
    " --force-webrtc-ip-handling-policy=disable_non_proxied_udp --disable-blink-features=WebTransport"
    " \"--host-resolver-rules=MAP * ~NOTFOUND\"";

/// Pages are printed out of sight, where they would get a low priority: on a busy machine that takes minutes.
constexpr char kNoWaiting[] = " --disable-renderer-backgrounding";

}  // namespace

void PrepareBrowserEngine() {
  // A local scheme would give every frame its own origin; a secure one keeps media and scripts working.
  QWebEngineUrlScheme scheme(QByteArray(kExamScheme.data(), kExamScheme.size()));
  scheme.setSyntax(QWebEngineUrlScheme::Syntax::Host);
  scheme.setFlags(QWebEngineUrlScheme::SecureScheme);
  QWebEngineUrlScheme::registerScheme(scheme);

  qputenv(kFlagsVariable, qgetenv(kFlagsVariable) + kNoNetwork + kNoWaiting);
  if (geteuid() == 0) qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");  // the sandbox refuses to run as root
}

}  // namespace quorvantis
