// SPDX-License-Identifier: MIT
#include "platform/BrowserControl.h"
#include "platform/Timers.h"
#include "render/PreviewSession.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace quorvantis::test {
namespace {

using Steps = std::vector<std::string>;

/// Writes down what a session does with its window, its owner and the time.
class PreviewSessionTest : public testing::Test, public BrowserControl, public Timers, public PreviewOwner {
 protected:
  /// What has happened since the last look.
  Steps Look() { return std::exchange(steps, {}); }

  /// Lets the oldest timer fire.
  void Fire() {
    const auto action = std::move(timers.front());
    timers.erase(timers.begin());
    action();
  }

  Steps steps;
  std::vector<std::function<void()>> timers;
  std::optional<PreviewSession> session{std::in_place, *this, *this, *this, "/app"};

 private:
  void Navigate(const std::filesystem::path& page) override { steps.push_back("go " + page.string()); }
  void Place(int x, int y) override {
    steps.push_back("place " + std::to_string(x) + " " + std::to_string(y));
  }
  void Show() override { steps.emplace_back("show"); }
  void Hide() override { steps.emplace_back("hide"); }
  void Print() override { steps.emplace_back("print"); }
  void After(std::chrono::milliseconds delay, std::function<void()> action) override {
    steps.push_back("wait " + std::to_string(delay.count()));
    timers.push_back(std::move(action));
  }
  void PreviewFinished() override {
    steps.emplace_back("finished");
    session->StatusTextChanged(u"ExamFinish");
  }
};

TEST_F(PreviewSessionTest, ShowsAPageUntilTheExamIsFinished) {
  EXPECT_EQ(Look(), Steps{"go /app/~BrelmStudent/SEE.htm"});
  session->ShowPreview("/app/SEE.htm");
  EXPECT_EQ(Look(), (Steps{"go /app/SEE.htm", "place 0 0", "show"}));
  for (const auto* text : {u"", u"Done", u"examfinish", u"ExamFinis", u" ExamFinish"})
    session->StatusTextChanged(text);
  EXPECT_EQ(Look(), Steps{});
  session->StatusTextChanged(u"ExamFinished");
  EXPECT_EQ(Look(), (Steps{"finished", "go ", "wait 1000"}));
  session->StatusTextChanged(u"ExamFinish");
  session->Leave();
  EXPECT_FALSE(session->Closing());
  Fire();
  EXPECT_TRUE(session->Closing());
  session->StatusTextChanged(u"ExamFinish");
  EXPECT_EQ(Look(), Steps{"hide"});
}

TEST_F(PreviewSessionTest, LeavesWithoutTellingTheOwner) {
  Look();
  session->Leave();
  session->StatusTextChanged(u"ExamFinish");
  Fire();
  EXPECT_EQ(Look(), (Steps{"go ", "wait 1000", "hide"}));
}

TEST_F(PreviewSessionTest, PrintsOffTheScreen) {
  Look();
  session->PrintOffScreen("/app/exam_Print.htm");
  EXPECT_EQ(Look(), (Steps{"go /app/exam_Print.htm", "place 2000 2000", "show", "wait 500", "hide"}));
  Fire();
  EXPECT_EQ(Look(), (Steps{"show", "print"}));
}

TEST_F(PreviewSessionTest, DoesNothingWhenItIsGone) {
  session->PrintOffScreen("page");
  session->Leave();
  Look();
  session.reset();
  Fire();
  Fire();
  EXPECT_EQ(Look(), Steps{});
}

}  // namespace
}  // namespace quorvantis::test
