// SPDX-License-Identifier: MIT
#include "platform/posix/PosixFiles.h"
#include "shell/language/LanguageId.h"
#include "shell/start/CQuorvantisApp.h"
#include "support/RecordingWorld.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <functional>

namespace quorvantis::test {
namespace {

struct FakeLibrary : LanguageLibrary {
  std::optional<std::uint16_t> id;
  std::map<int, std::u16string> texts;

  std::optional<std::uint16_t> Id() const override { return id; }
  bool HasText(int number) const override { return texts.contains(number); }
  std::u16string Text(int number) const override { return HasText(number) ? texts.at(number) : u""; }
  std::u16string DialogText(int dialog, int control) const override {
    return dialog == 100 && control == 1 ? u"own OK" : u"";
  }
  std::span<const std::byte> Bitmap(std::string_view, int) const override { return {}; }
};

/// The content of a file stands for its library: "1033 Name" or only one of the two; "broken" cannot be
/// loaded.
class FakeLibraries : public LanguageLibraries {
 public:
  std::unique_ptr<LanguageLibrary> Load(const std::filesystem::path& file) override {
    const std::string content = ReadBytes(file);
    if (content == "broken") return nullptr;
    auto library = std::make_unique<FakeLibrary>();
    const std::string name = content.substr(std::min(content.find(' ') + 1, content.size()));
    if (!content.starts_with(' ')) library->id = static_cast<std::uint16_t>(std::stoi(content));
    if (content.find(' ') != std::string::npos) library->texts[158] = {name.begin(), name.end()};
    library->texts[101] = u"";
    return library;
  }
};

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

class Languages : public testing::Test {
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

TEST_F(Languages, AreListedByFileName) {
  Add("b.dll", "2 Second");
  Add("a.DLL", "1 First");
  Add("c.dLl", "3");
  Add(".dll", "4 only the extension");
  Add("d.txt", "5 no library");
  Add("e.dll", "broken");
  Add("f.dll", " without an identifier");
  std::filesystem::create_directories(folder / "g.dll");
  std::error_code error;
  const LanguageList list = ScanLanguageLibraries(folder, libraries, error);
  EXPECT_FALSE(error);
  EXPECT_EQ(list.languageIds, (std::vector<std::uint16_t>{1, 2, 3}));
  EXPECT_EQ(list.languageNames, (std::vector<std::u16string>{u"First", u"Second", u""}));
  EXPECT_EQ(list.languageFiles[0], folder / "a.DLL");
  EXPECT_EQ(list.DisplayName(2), u"c.dLl") << "a name that can be selected";
}

TEST_F(Languages, StartUpRunsInOrder) {
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

TEST_F(Languages, WithoutALanguageThereIsNoStart) {
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

TEST_F(Languages, TextsThatALibraryLacksAreBuiltIn) {
  LanguageInUse language;
  EXPECT_EQ(language.Text(101), u"Oxna Quorvantis(&A)...");
  EXPECT_EQ(language.DialogText(244, 0), u"请选择");
  EXPECT_EQ(language.Id(), std::nullopt);
  Add("a.dll", "1 First");
  language.Use(libraries.Load(folder / "a.dll"));
  EXPECT_EQ(language.Text(101), u"") << "empty on purpose";
  EXPECT_EQ(language.Text(158), u"First");
  EXPECT_EQ(language.Text(156), u"Scan questions");
  EXPECT_EQ(language.DialogText(100, 1), u"own OK");
  EXPECT_EQ(language.DialogText(100, 2000), u"Quorvantis Verson 6.2");
}

TEST(LanguageId, IsReadInBothNotations) {
  for (const char* text : {"1033", "0x409", "0X0409"}) EXPECT_EQ(ParseLanguageId(text), 0x409) << text;
  for (const char* text : {"", "0x", "-1", "1033 ", "65536", "0xFFFFF", "en"}) {
    EXPECT_EQ(ParseLanguageId(text), std::nullopt) << text;
  }
  EXPECT_EQ(FormatLanguageId(0x409), "0x0409");
  for (const int id : {0x0401, 0x0801, 0x040D, 0x0429}) EXPECT_TRUE(IsRightToLeft(id)) << id;
  for (const int id : {0, 0x0409, 0x0804, 0x0407}) EXPECT_FALSE(IsRightToLeft(id)) << id;
}

}  // namespace
}  // namespace quorvantis::test
