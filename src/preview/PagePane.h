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
/// scrolls; Tab does not go through the links of a page. The owner of the pane takes its place among the
/// controls that Tab goes through, for the browser makes its widget late.
class PagePane : public QWidget {
  Q_OBJECT

 public:
  /// Call this before a window is first shown in which a pane is made later, as a child of `parent` or of a
  /// part of it. Otherwise the window system's window would be made anew with the pane, and the keyboard
  /// would go to another one.
  static void Expect(QWidget& parent);

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
  /// The user goes on to the next control, or back to the one before.
  void TabPressed(bool isForward);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void FollowKeys();

  ExamBrowser browser_;
  ExamPage page_;
  QWebEngineView view_;
};

}  // namespace quorvantis
