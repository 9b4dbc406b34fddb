// SPDX-License-Identifier: MIT
#include "preview/ExamPage.h"

#include "preview/PageAddress.h"
#include "preview/PageScripts.h"
#include "preview/RequestGuard.h"

#include <QWebEngineSettings>

namespace quorvantis {
namespace {

/// How often a page that navigates away is brought back. One that keeps leaving stays blank instead of
/// flickering.
constexpr int kMostReturns = 3;

void Restrict(QWebEngineSettings& settings) {
  for (const auto attribute :
       {QWebEngineSettings::JavascriptCanOpenWindows, QWebEngineSettings::JavascriptCanAccessClipboard,
        QWebEngineSettings::LocalStorageEnabled, QWebEngineSettings::PluginsEnabled,
        QWebEngineSettings::PdfViewerEnabled, QWebEngineSettings::FullScreenSupportEnabled,
        QWebEngineSettings::ScreenCaptureEnabled, QWebEngineSettings::HyperlinkAuditingEnabled,
        QWebEngineSettings::DnsPrefetchEnabled, QWebEngineSettings::AllowWindowActivationFromJavaScript,
        QWebEngineSettings::NavigateOnDropEnabled, QWebEngineSettings::LocalContentCanAccessFileUrls,
        QWebEngineSettings::PlaybackRequiresUserGesture}) {
    settings.setAttribute(attribute, false);
  }
  settings.setAttribute(QWebEngineSettings::WebRTCPublicInterfacesOnly, true);
}

}  // namespace

ExamPage::ExamPage(QWebEngineProfile* profile, QObject* parent) : QWebEnginePage(profile, parent) {
  Restrict(*settings());
  connect(this, &QWebEnginePage::featurePermissionRequested, this,
          [this](const QUrl& origin, Feature feature) {
            setFeaturePermission(origin, feature, PermissionDeniedByUser);
          });
  // The one address that a page may go to without asking.
  connect(this, &QWebEnginePage::urlChanged, this, [this](const QUrl& url) {
    if (url == QUrl(kBlankPage) && destination_ != url && returns_++ < kMostReturns) load(destination_);
  });
}

void ExamPage::Go(const QUrl& address) {
  destination_ = address;
  returns_ = 0;
  load(address);
}

/// Nobody receives a form; sending it would only lose the input. A link within the page is not another
/// address.
bool ExamPage::acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) {
  if (type == NavigationTypeFormSubmitted) return false;
  if (isMainFrame) return url.matches(destination_, QUrl::RemoveFragment);
  return RequestGuard::StaysInside(url);
}

/// Also called, as a question to the user, when a page wants to stay; the program must be free to leave. A
/// page that asks for itself gets a no.
bool ExamPage::javaScriptConfirm(const QUrl&, const QString&) {
  return destination_ == QUrl(kBlankPage);
}

void ExamPage::javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString& message, int,
                                        const QString&) {
  if (message.startsWith(kStatusLine)) emit StatusTextChanged(message.mid(qsizetype(sizeof kStatusLine) - 1));
}

}  // namespace quorvantis
