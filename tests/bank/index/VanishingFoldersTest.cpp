// SPDX-License-Identifier: MIT
#include "bank/BankTest.h"
#include "platform/QuietProgress.h"
#include "support/OrdinaryUser.h"

#include <chrono>
#include <functional>
#include <optional>

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

class VanishingFolders : public BankTest {
 protected:
  static constexpr std::size_t kExams = 12;

  /// Gives all exams another time, so that an update has to look into each.
  void TouchAll() {
    for (const fs::path& exam : all_) fs::last_write_time(exam, fs::file_time_type::clock::now());
  }

  void WriteAll() {
    for (std::size_t i = 0; i < kExams; ++i) {
      const fs::path below = exams / (i % 3 == 0 ? "" : "sub/deep");
      all_.push_back(WriteExam(below / (std::to_string(i) + ".exm"), u"", {QuestionWith(u"mitosis")}));
    }
    Update();
    ASSERT_EQ(CountOf(u"mitosis"), kExams);
  }

  /// Does `loss` after so many steps of an update, and `back` after it; every exam must be kept all along.
  /// Returns whether the update had ended before.
  bool LoseAfter(int steps, const std::function<void()>& loss, const std::function<void()>& back) {
    BankUpdate update(*index, world.services, digest);
    bool hasEnded = false;
    for (int i = 0; i < steps && !hasEnded; ++i) hasEnded = !update.Step(std::chrono::milliseconds(0));
    loss();
    update.Run();
    EXPECT_EQ(update.Report().removed, 0U) << "lost after " << steps << " steps";
    EXPECT_FALSE(update.Report().problem.IsAnything());
    EXPECT_EQ(index->Exams(problem).size(), kExams) << "lost after " << steps << " steps";
    EXPECT_EQ(index->Data().Number("SELECT count(*) FROM question"), static_cast<std::int64_t>(kExams));
    Find(u"mitosis");  // looks at the files, too
    EXPECT_EQ(index->Exams(problem).size(), kExams);
    back();
    EXPECT_EQ(Update().removed, 0U);
    EXPECT_EQ(CountOf(u"mitosis"), kExams);
    return hasEnded;
  }

  std::vector<fs::path> all_;
};

TEST_F(VanishingFolders, KeepAllOfADiskThatIsUnpluggedAtAnyMoment) {
  WriteAll();
  const fs::path away = folder / "unplugged";
  int steps = 0;
  for (bool hasEnded = false; !hasEnded; ++steps) {
    TouchAll();
    hasEnded = LoseAfter(
        steps, [&] { fs::rename(exams, away); }, [&] { fs::rename(away, exams); });
  }
  EXPECT_GT(steps, static_cast<int>(kExams));
  fs::remove_all(exams / "sub");
  EXPECT_EQ(Update().removed, kExams - kExams / 3) << "what was really removed is";
}

TEST_F(VanishingFolders, KeepAllOfAFolderThatIsClosedAtAnyMoment) {
  WriteAll();
  for (const auto& entry : fs::recursive_directory_iterator(folder.Path()))
    fs::permissions(entry, fs::perms::all);
  fs::permissions(folder.Path(), fs::perms::all);
  const auto allow = [this](const fs::path& place, fs::perms permissions) {
    fs::permissions(place, permissions);
  };
  for (const fs::path& closed : {exams, exams / "sub"}) {
    int steps = 0;
    bool hasEnded = false;
    for (; !hasEnded; ++steps) {
      TouchAll();
      index.reset();
      std::optional<OrdinaryUser> user(std::in_place);
      index = Open();
      ASSERT_TRUE(index);
      // The owner of the folder closes it while the other one reads.
      const auto asOwner = [&](fs::perms permissions) {
        user.reset();
        allow(closed, permissions);
        user.emplace();
      };
      hasEnded = LoseAfter(
          steps, [&] { asOwner(fs::perms::none); }, [&] { asOwner(fs::perms::all); });
    }
    EXPECT_GT(steps, static_cast<int>(kExams));
  }
}

/// On a network each entry may take a moment; the window must close all the same.
TEST_F(VanishingFolders, ACancelIsNoticedWithinAFewEntries) {
  for (int i = 0; i < 500; ++i) WriteBytes(exams / (std::to_string(i) + ".txt"), "");
  std::size_t polls = 0;
  QuietProgress progress([&polls] { return ++polls, false; });
  RecordingWorld watched(folder / "app", files, world.pages, progress);
  BankUpdate update(*index, watched.services, digest);
  update.Run();
  EXPECT_EQ(update.Report().filesSeen, 500U);
  EXPECT_GT(polls, 500U / 20);
  WriteAll();
  polls = 0;
  QuietProgress impatient([&polls] { return ++polls > 3; });
  RecordingWorld cancelling(folder / "app", files, world.pages, impatient);
  EXPECT_TRUE(BankSearch(*index, cancelling.services, digest).Find({}, 100).hits.empty());
  EXPECT_LT(polls, 6U);
}

}  // namespace
}  // namespace quorvantis::test
