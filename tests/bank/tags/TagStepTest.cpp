// SPDX-License-Identifier: MIT
#include "bank/tags/TagStep.h"
#include "platform/posix/PosixFiles.h"
#include "support/TemporaryFolder.h"
#include "text/SeededRandom.h"

#include <gtest/gtest.h>

#include <iterator>

namespace quorvantis::test {
namespace {

class TagStepTest : public testing::Test {
 protected:
  TagStepTest() {
    for (const char* name : {"a", "b", "c"}) std::filesystem::create_directory(folder / name);
  }

  std::size_t Below(std::size_t limit) { return static_cast<std::size_t>(random_.Below(limit)); }

  /// Tags in all scripts, some the same but for their case.
  std::vector<std::u16string> SomeTags() {
    constexpr std::u16string_view kTags[] = {
        u"cell", u"CELL", u"\u7EC6\u80DE", u"\u062E\u0644\u064A\u0629", u"class:8b", u"\u00C9t\u00E9"};
    std::vector<std::u16string> tags;
    for (std::size_t left = Below(3); left > 0; --left) tags.emplace_back(kTags[Below(std::size(kTags))]);
    return tags;
  }

  TagStep AnyStep() {
    TagStep step;
    for (const char* name : {"a", "b", "c"}) {
      if (Below(2) == 0) continue;
      FolderChange change{folder / name, {}};
      for (char digit = '0'; digit < '4'; ++digit) {
        if (Below(2) == 0)
          change.changes.push_back({std::string(32, digit), u"Why?", {}, SomeTags(), SomeTags()});
      }
      step.push_back(std::move(change));
    }
    return step;
  }

  /// What people read in the files. Tags are compared exactly, with their case.
  std::map<std::string, std::vector<std::u16string>> State() {
    std::map<std::string, std::vector<std::u16string>> state;
    for (const char* name : {"a", "b", "c"}) {
      TagResult result;
      for (const auto& [key, entry] : TagFile(folder / name, files).Read(result))
        if (!entry.tags.empty()) state[name + key] = entry.tags;
    }
    return state;
  }

  TemporaryFolder folder;
  PosixFiles files;
  SeededRandom random_{3};
};

TEST_F(TagStepTest, IsTakenBackExactly) {
  std::vector<std::pair<TagStep, std::map<std::string, std::vector<std::u16string>>>> history;
  std::size_t undone = 0;
  for (int i = 0; i < 120; ++i) {
    if (!history.empty() && Below(3) == 0) {
      EXPECT_TRUE(MakeTagStep(history.back().first, files).failed.empty());
      ASSERT_EQ(State(), history.back().second) << "step " << i;
      history.pop_back();
      ++undone;
    } else {
      const auto before = State();
      const TagStepResult made = MakeTagStep(AnyStep(), files);
      EXPECT_TRUE(made.failed.empty());
      EXPECT_EQ(made.undo.empty(), State() == before);
      history.emplace_back(made.undo, before);
    }
  }
  EXPECT_GT(undone, 20U);
}

TEST_F(TagStepTest, TakesBackOnlyWhatItDid) {
  const std::string key(32, 'a');
  const auto give = [&](const char16_t* tag) {
    return TagStep{{folder / "a", {{key, u"Why?", {}, {tag}, {}}}}};
  };
  ASSERT_TRUE(MakeTagStep(give(u"mine"), files).failed.empty());
  const TagStepResult again = MakeTagStep(give(u"Mine"), files);
  EXPECT_TRUE(again.undo.empty()) << "it had the tag";
  const TagStepResult added = MakeTagStep(give(u"new"), files);
  ASSERT_TRUE(MakeTagStep(give(u"of another program"), files).failed.empty());
  ASSERT_TRUE(MakeTagStep(added.undo, files).failed.empty());
  EXPECT_EQ(State()["a" + key], (std::vector<std::u16string>{u"mine", u"of another program"}));
}

TEST_F(TagStepTest, IsMadeWhereItCan) {
  WriteBytes(folder / "b" / kTagFileName, "{");
  const std::string key(32, 'a');
  const TagChange change{key, u"Why?", {}, {u"cell"}, {}};
  const TagStepResult made = MakeTagStep({{folder / "a", {change}},
                                          {folder / "b", {change}},
                                          {folder / "gone", {change}},
                                          {folder / "c", {change}}},
                                         files);
  EXPECT_EQ(made.undo.size(), 2U);
  ASSERT_EQ(made.failed.size(), 2U);
  EXPECT_EQ(made.failed[0].result.outcome, TagOutcome::Damaged);
  EXPECT_EQ(made.failed[1].change.folder, folder / "gone");
  EXPECT_EQ(State().size(), 2U);
}

}  // namespace
}  // namespace quorvantis::test
