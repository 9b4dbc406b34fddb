// SPDX-License-Identifier: MIT
#pragma once

#include "preview/ExamGateway.h"
#include "preview/RequestGuard.h"

#include <QWebEngineProfile>
#include <QWebEngineScript>

namespace quorvantis {

/// What windows with exam pages share: a profile that keeps nothing on the disk, for it has no name, and what
/// answers its requests. Pages of the profile must go before this.
class ExamBrowser {
 public:
  /// `script` runs in every page.
  ExamBrowser(const GatewaySetup& setup, const QWebEngineScript& script);
  ExamBrowser(const ExamBrowser&) = delete;
  ExamBrowser& operator=(const ExamBrowser&) = delete;

  ExamGateway& Gateway() { return gateway_; }
  QWebEngineProfile& Profile() { return profile_; }

 private:
  RequestGuard guard_;
  ExamGateway gateway_;
  QWebEngineProfile profile_;
};

}  // namespace quorvantis
