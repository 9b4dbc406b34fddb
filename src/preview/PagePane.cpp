// SPDX-License-Identifier: MIT
#include "preview/PagePane.h"

#include "preview/PageAddress.h"

#include <QKeyEvent>
#include <QQuickWidget>
#include <QVBoxLayout>
#include <QWebEngineSettings>

namespace quorvantis {
namespace {

/// Scripts of the page are off; those of this world run all the same.
QWebEngineScript BesideThePage(const QString& code) {
  QWebEngineScript script;
  script.setInjectionPoint(QWebEngineScript::DocumentReady);
  script.setWorldId(QWebEngineScript::ApplicationWorld);
  script.setSourceCode(code);
  return script;
}

}  // namespace

/// A window is made for what browsers draw if anything in it, shown or not, draws in the same way.
void PagePane::Expect(QWidget& parent) {
  (new QQuickWidget(&parent))->hide();
}

PagePane::PagePane(const GatewaySetup& setup, const QString& script, QWidget* parent)
    : QWidget(parent),
      browser_(setup, BesideThePage(script)),
      page_(&browser_.Profile(), nullptr),
      view_(this) {
  page_.settings()->setAttribute(QWebEngineSettings::JavascriptEnabled, false);
  view_.setContextMenuPolicy(Qt::NoContextMenu);
  view_.setPage(&page_);
  view_.setAcceptDrops(false);
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(&view_);
  setFocusProxy(&view_);
  FollowKeys();
  connect(&page_, &QWebEnginePage::loadFinished, this, &PagePane::FollowKeys);
}

void PagePane::Show(const std::filesystem::path& page) {
  browser_.Gateway().SetPage(page);
  page_.Go(AddressOf(page));
}

void PagePane::Clear() {
  browser_.Gateway().PageGone();
  page_.Go(QUrl(kBlankPage));
}

/// The browser gets the keys in a widget of its own, which may be another one after the first page.
void PagePane::FollowKeys() {
  QWidget* const keys = view_.focusProxy();
  if (keys == nullptr) return;
  for (QWidget* const part : {keys, static_cast<QWidget*>(&view_)}) part->setFocusPolicy(Qt::ClickFocus);
  keys->removeEventFilter(this);
  keys->installEventFilter(this);
}

bool PagePane::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
  const int key = static_cast<QKeyEvent&>(*event).key();
  if (key == Qt::Key_Escape) {
    emit EscapePressed();
    return true;
  }
  if (key == Qt::Key_Tab || key == Qt::Key_Backtab) {
    emit TabPressed(key == Qt::Key_Tab);
    return true;
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace quorvantis
