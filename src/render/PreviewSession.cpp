// SPDX-License-Identifier: MIT
#include "render/PreviewSession.h"

#include "platform/BrowserControl.h"
#include "platform/Timers.h"
#include "render/PreviewPaths.h"
#include "text/PathText.h"

namespace quorvantis {
namespace {

using std::chrono::milliseconds;

constexpr milliseconds kUntilPrinting{500};
constexpr milliseconds kUntilClosed{1000};
constexpr int kOffScreen = 2000;

/// Compared with the beginning of a status text only, so that a page may say more ("ExamFinished").
constexpr std::u16string_view kFinishSignal = u"ExamFinish";

}  // namespace

struct PreviewSession::State {
  BrowserControl& browser;
  Timers& timers;
  PreviewOwner& owner;
  bool finishing = false;  ///< on its way to `closing`; nothing that the page says counts any more
  bool closing = false;

  void PrintByKeystroke() {
    browser.Show();
    browser.Print();
  }
};

PreviewSession::PreviewSession(BrowserControl& browser, Timers& timers, PreviewOwner& owner,
                               const std::filesystem::path& applicationFolder)
    : state_(std::make_shared<State>(State{browser, timers, owner})) {
  browser.Navigate(applicationFolder / TextToPath(kStudentFolders) / "SEE.htm");
}

void PreviewSession::ShowPreview(const std::filesystem::path& page) {
  state_->browser.Navigate(page);
  state_->browser.Place(0, 0);
  state_->browser.Show();
}

void PreviewSession::PrintOffScreen(const std::filesystem::path& page) {
  state_->browser.Navigate(page);
  state_->browser.Place(kOffScreen, kOffScreen);
  state_->browser.Show();
  state_->timers.After(kUntilPrinting, [held = std::weak_ptr(state_)] {
    const auto state = held.lock();
    if (state && !state->finishing) state->PrintByKeystroke();
  });
  state_->browser.Hide();
}

void PreviewSession::StatusTextChanged(std::u16string_view text) {
  if (state_->finishing || !text.starts_with(kFinishSignal)) return;
  state_->finishing = true;  // before the owner is told: what it does may bring the next status text
  state_->owner.PreviewFinished();
  Close();
}

void PreviewSession::Leave() {
  if (state_->finishing) return;
  state_->finishing = true;
  Close();
}

void PreviewSession::PrintByKeystroke() {
  state_->PrintByKeystroke();
}

bool PreviewSession::Closing() const {
  return state_->closing;
}

/// The OK command. The page gets a second to end what it is doing (a recording, a playback) before the window
/// goes.
void PreviewSession::Close() {
  state_->browser.Navigate({});
  state_->timers.After(kUntilClosed, [held = std::weak_ptr(state_)] {
    const auto state = held.lock();
    if (!state) return;
    state->closing = true;
    state->browser.Hide();
  });
}

}  // namespace quorvantis
