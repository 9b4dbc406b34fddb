// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace quorvantis {

/// An embedded browser in a borderless window of its own. Created hidden, as large as the screen.
class BrowserControl {
 public:
  virtual ~BrowserControl() = default;

  /// Loads the page that was written to `page`, an absolute path; an empty path leaves for the blank page.
  /// What is shown is the composed page, whole, even where the file holds less of it (see ComposedPages).
  virtual void Navigate(const std::filesystem::path& page) = 0;

  /// Moves the window, on top of others, without changing its size. Screen pixels.
  virtual void Place(int x, int y) = 0;
  virtual void Show() = 0;
  virtual void Hide() = 0;

  /// Puts the loaded page to the printer, after asking the user which. A page still loading is waited for.
  virtual void Print() = 0;
};

}  // namespace quorvantis
