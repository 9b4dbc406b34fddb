// SPDX-License-Identifier: MIT
#pragma once

#include "preview/ExamBrowser.h"
#include "preview/ExamPage.h"

#include <QWebEngineView>
#include <QWidget>

#include <filesystem>

namespace quorvantis {

/// A part of a window that shows pages of exams, one after the other, to look at. No script runs in them, and
/// nothing leaves the program. It has a browser of its own, so previews are not touched. The keyboard
/// scrolls; Tab goes on to the next control, past all links of a page.
class PagePane : public QWidget {
  Q_OBJECT

 public:
  /// The pages of `setup` must outlive the pane. `script`, of the program, runs in every page beside the
  /// page's world once it is there, and may change what it shows.
  PagePane(const GatewaySetup& setup, const QString& script, QWidget* parent);

  /// Shows the composed page of `page`, an absolute path.
  void Show(const std::filesystem::path& page);

  /// Shows an empty page; the files of the last one may go.
  void Clear();

 signals:
  /// The user leaves the page.
  void EscapePressed();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void FollowKeys();

  ExamBrowser browser_;
  ExamPage page_;
  QWebEngineView view_;
};

}  // namespace quorvantis
