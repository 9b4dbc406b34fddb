// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <memory>
#include <string_view>

namespace quorvantis {

class BrowserControl;
class Timers;

/// What a preview needs of the window that started it.
class PreviewOwner {
 public:
  virtual ~PreviewOwner() = default;

  /// The previewed exam was finished by its button: the prefixes of one preview come off the attachment
  /// paths.
  virtual void PreviewFinished() = 0;
};

/// One preview or print, from the first page to the closed window: the rules behind the preview window. Made
/// anew for each; timers that are still running when it goes do nothing any more.
class PreviewSession {
 public:
  /// All must outlive the session. The default page of the student side is loaded at once, hidden.
  PreviewSession(BrowserControl& browser, Timers& timers, PreviewOwner& owner,
                 const std::filesystem::path& applicationFolder);

  /// Shows `page` on top of everything.
  void ShowPreview(const std::filesystem::path& page);

  /// Prints `page` in half a second, off the screen.
  void PrintOffScreen(const std::filesystem::path& page);

  /// The page set the browser's status text. "ExamFinish" at its beginning finishes the exam; anything after
  /// that is ignored.
  void StatusTextChanged(std::u16string_view text);

  /// The user leaves the preview without finishing (Escape): as the OK command, the owner is not told.
  void Leave();

  /// The print button, or the timer.
  void PrintByKeystroke();

  bool Closing() const;

 private:
  void Close();

  struct State;
  std::shared_ptr<State> state_;  ///< timers hold it weakly
};

}  // namespace quorvantis
