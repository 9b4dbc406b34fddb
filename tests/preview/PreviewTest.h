// SPDX-License-Identifier: MIT
#pragma once

#include "preview/PreviewWindows.h"
#include "support/TemporaryFolder.h"
#include "text/PathText.h"

#include <QElapsedTimer>
#include <QTest>
#include <QWebEngineScript>

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>

namespace quorvantis::test {

class CountingOwner : public PreviewOwner {
 public:
  int finished = 0;
  void PrefixAttachmentPaths(int on) override { finished += on == 0; }
};

/// A browser on an application folder with pages and attached files created by the test.
class PreviewTest : public testing::Test {
 protected:
  static constexpr int kLongest = 60'000;  // milliseconds; slow machines must have time to convert documents

  PreviewTest() { std::filesystem::create_directories(previewFolder); }

  /// Composes a page of the preview.
  std::filesystem::path Compose(const char* name, const std::string& body) {
    std::filesystem::path page = previewFolder / name;
    pages.Add(page, QString::fromStdString("<HTML><BODY>" + body + "</BODY></HTML>").toStdU16String());
    return page;
  }

  /// A file attached in this run.
  std::filesystem::path Attach(const std::string& name, std::string_view bytes) {
    return WriteBytes(AttachMissing(name), bytes);
  }
  std::filesystem::path AttachMissing(const std::string& name) {
    const std::filesystem::path file = app / "~TEMP" / "home" / name;
    pages.AddSource({PathToText("~TEMP/home/" + name), file, PathToText(name)});
    return file;
  }

  PreviewWindows& Windows() {
    if (!windows) windows.emplace(GatewaySetup{app, pages, flashPlayer, programs, texts});
    return *windows;
  }

  /// As the main window does for every preview and print.
  PreviewWindow& NewWindow() {
    window.reset();
    window = Windows().Make();
    window->SetOwner(owner);
    return *window;
  }
  void ShowPreview(const std::filesystem::path& page) {
    window->Navigate(page);
    window->Place(0, 0);
    window->Show();
  }
  void PrintOffScreen(const std::filesystem::path& page) {
    NewWindow().Navigate(page);
    window->Place(2000, 2000);
    window->Show();
    window->StartPrintTimer();
    window->Hide();
  }

  /// Shows `page` and waits until it has loaded.
  void Preview(const std::filesystem::path& page) {
    NewWindow();
    ShowPreview(page);
    ASSERT_TRUE(WaitFor([&] {
      return Evaluate("document.readyState === 'complete' && location.href").toUrl() == Page().url() &&
             Page().url().fileName() == page.filename().c_str();
    }));
  }

  PreviewWindow& Window() { return *window; }
  QWebEnginePage& Page() { return *Window().findChild<QWebEngineView*>()->page(); }

  static bool WaitFor(const std::function<bool()>& condition, int limit = kLongest) {
    QElapsedTimer timer;
    timer.start();
    while (!condition()) {
      if (timer.elapsed() > limit) return false;
      QTest::qWait(30);
    }
    return true;
  }

  /// The result of a script in the shown page; invalid if the page does not respond.
  QVariant Evaluate(const QString& script) {
    struct Answer {
      bool here = false;
      QVariant value;
    };
    const auto answer = std::make_shared<Answer>();
    Page().runJavaScript(script, QWebEngineScript::MainWorld, [answer](const QVariant& value) {
      answer->value = value;
      answer->here = true;
    });
    WaitFor([&] { return answer->here; }, 5000);
    return answer->value;
  }

  /// Waits until a script returns true.
  bool Becomes(const QString& script, int limit = kLongest) {
    return WaitFor([&] { return Evaluate("Boolean(" + script + ")").toBool(); }, limit);
  }

  TemporaryFolder folder;
  std::filesystem::path app = std::filesystem::canonical(folder.Path()) / "app";
  std::filesystem::path previewFolder = app / "TEMP" / "ExamPreview";
  ComposedPages pages;
  CountingOwner owner;
  ConverterPrograms programs = ConverterPrograms::Find();
  std::filesystem::path flashPlayer;
  PreviewTexts texts{"Preparing %1", "%1 cannot appear", "%1 is gone",
                     "%1 needs %2",  "First %1",         "Beginning"};
  std::optional<PreviewWindows> windows;
  PreviewWindows::Window window;
};

}  // namespace quorvantis::test
