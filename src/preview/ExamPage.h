// SPDX-License-Identifier: MIT
#pragma once

#include <QWebEnginePage>

namespace quorvantis {

/// A browser page that shows untrusted exams: it goes only where the program sends it, opens nothing, and
/// asks the user nothing.
class ExamPage : public QWebEnginePage {
  Q_OBJECT

 public:
  ExamPage(QWebEngineProfile* profile, QObject* parent);

  /// Loads `address`, from now on the only one for the whole window. Frames may go anywhere within the exam.
  void Go(const QUrl& address);

  const QUrl& Destination() const { return destination_; }

 signals:
  /// A frame set the status text.
  void StatusTextChanged(const QString& text);

 protected:
  bool acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) override;
  QWebEnginePage* createWindow(WebWindowType) override { return nullptr; }
  QStringList chooseFiles(FileSelectionMode, const QStringList&, const QStringList&) override { return {}; }
  void javaScriptAlert(const QUrl&, const QString&) override {}
  bool javaScriptConfirm(const QUrl&, const QString&) override;
  bool javaScriptPrompt(const QUrl&, const QString&, const QString&, QString*) override { return false; }
  void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level, const QString& message, int line,
                                const QString& source) override;

 private:
  QUrl destination_;
  int returns_ = 0;  ///< returns to the destination after a page left for the blank one
};

}  // namespace quorvantis
