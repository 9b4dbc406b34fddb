// SPDX-License-Identifier: MIT
#include "preview/PreviewWindows.h"

#include "preview/BrowserEngine.h"
#include "preview/PageScripts.h"
#include "preview/RequestGuard.h"

#include <QWebEngineScriptCollection>

#include <utility>

namespace quorvantis {

/// What all windows share. The profile has no name and therefore keeps nothing on the disk.
struct PreviewWindows::Browser {
  explicit Browser(const GatewaySetup& setup) : gateway(setup) {
    profile.setUrlRequestInterceptor(&guard);
    profile.installUrlSchemeHandler(QByteArray(kExamScheme.data()), &gateway);
    profile.scripts()->insert(PageScript({setup.texts.preparing, setup.texts.cannotShow}));
  }

  RequestGuard guard;
  ExamGateway gateway;
  QWebEngineProfile profile;
};

PreviewWindows::PreviewWindows(GatewaySetup setup, PreviewOwner& owner)
    : setup_(std::move(setup)), owner_(owner) {}

PreviewWindows::~PreviewWindows() = default;

void PreviewWindows::Warm() {
  if (!window_) NewSession();
}

PreviewSession& PreviewWindows::NewSession() {
  Browser& browser = StartedBrowser();
  window_.reset();
  window_ = std::make_unique<PreviewWindow>(browser.profile, browser.gateway, owner_,
                                            setup_.applicationFolder, ask_);
  return window_->Session();
}

PreviewWindows::Browser& PreviewWindows::StartedBrowser() {
  if (!browser_) browser_ = std::make_unique<Browser>(setup_);
  return *browser_;
}

}  // namespace quorvantis
