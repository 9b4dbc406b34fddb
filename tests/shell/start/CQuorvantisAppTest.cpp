// SPDX-License-Identifier: MIT
#include "platform/posix/PosixFiles.h"
#include "shell/language/FakeLibraries.h"
#include "shell/start/CQuorvantisApp.h"
#include "support/RecordingWorld.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

namespace quorvantis::test {
namespace {

/// Windows that record what happens and do what the test says.
class FakeWindows : public ApplicationWindows {
 public:
  std::vector<std::string> events;
  std::function<bool(LanguageChoice&)> choose = [](LanguageChoice&) { return true; };

  void LanguageApplied(const LanguageInUse& language) override {
    events.push_back("apply " + std::to_string(*language.Id()));
  }
  void ShowFailure(std::u16string_view message) override {
    events.push_back(std::string(message.begin(), message.end()));
  }
  bool ChooseLanguage(LanguageChoice& choice, const LanguageInUse&) override {
    events.emplace_back("choose");
    return choose(choice);
  }
  int RunMainWindow(CQuorvantisApp& application) override {
    const bool folderIsThere = std::filesystem::is_directory(application.ModuleFolder() / "~BrelmStudent");
    events.push_back((folderIsThere ? "run " : "no folder ") + std::to_string(application.LanguageId()));
    return 5;
  }
};

class ApplicationStart : public testing::Test {
 protected:
  void Add(const char* name, const char* content) { WriteBytes(folder / name, content); }

  /// Runs the application and returns its exit code.
  int Run(std::optional<int> asked = std::nullopt) {
    windows.events.clear();
    CQuorvantisApp application(module.Path(), folder, asked, {libraries, files, codePage, windows});
    EXPECT_FALSE(application.InitInstance());
    return application.ExitInstance();
  }
  using Events = std::vector<std::string>;

  TemporaryFolder module;
  std::filesystem::path folder = module / "language/Quorvantis";
  PosixFiles files;
  TestCodePage codePage;
  FakeLibraries libraries;
  FakeWindows windows;
};

TEST_F(ApplicationStart, RunsInOrder) {
  Add("a.dll", "1 First");
  Add("b.dll", "2 Second");
  EXPECT_EQ(Run(), 5);
  EXPECT_EQ(windows.events, (Events{"apply 1", "choose", "apply 1", "run 0"})) << "nothing is set: the first";
  windows.choose = [](LanguageChoice& choice) {
    EXPECT_EQ(choice.Names(), (std::vector<std::u16string>{u"First", u"Second"}));
    EXPECT_EQ(choice.Selected(), std::nullopt);
    choice.Select(1);
    choice.Select(2);
    EXPECT_EQ(choice.Selected(), 1U);
    return true;
  };
  Run();
  EXPECT_EQ(windows.events, (Events{"apply 1", "choose", "apply 2", "run 2"}));
  EXPECT_EQ(ReadBytes(module / "system.ini"), "[private]\r\nLanguage=2\r\n");
  windows.choose = [](LanguageChoice& choice) {
    choice.Select(0);
    return false;
  };
  EXPECT_EQ(Run(), 0);
  EXPECT_EQ(windows.events, (Events{"apply 2", "choose"}));
  EXPECT_NE(ReadBytes(module / "system.ini").find("Language=1"), std::string::npos)
      << "saved, though cancelled";
  Run(7);
  EXPECT_EQ(windows.events, (Events{"apply 1", "apply 1", "run 7"})) << "no such language: the first";
}

TEST_F(ApplicationStart, NeedsALanguage) {
  EXPECT_EQ(Run(), 2);
  EXPECT_EQ(windows.events, (Events{"Can't find any language file !GetLastError()=0x2\n"}));
  Add("readme.txt", "");
  EXPECT_EQ(Run(), 2);
  EXPECT_EQ(windows.events, (Events{"Cann't find any language file!\n"}));
  Add("a.dll", "1 First");
  windows.choose = [&](LanguageChoice&) {
    Add("a.dll", "broken");
    return true;
  };
  EXPECT_EQ(Run(), 2);
  EXPECT_EQ(windows.events.back(), "Load resouce file named " + (folder / "a.dll").string() + " failed!\n");
  EXPECT_FALSE(std::filesystem::exists(module / "~BrelmStudent"));
}

}  // namespace
}  // namespace quorvantis::test
