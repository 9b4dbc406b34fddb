// SPDX-License-Identifier: MIT
#include "recovery/RecoveryTest.h"
#include "shell/commands/RecoverCommand.h"

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

class OfferingRecovery : public RecoveryTest, protected RecoveryDialogs {
 protected:
  std::vector<std::u16string> asked;  ///< the titles
  std::deque<RecoveryAnswer> answers;

  RecoveryAnswer AskRestore(const RecoveryCopy& copy) override {
    asked.push_back(copy.title);
    const RecoveryAnswer answer = answers.front();
    answers.pop_front();
    return answer;
  }

  /// Leaves the copies of three runs, the first of them damaged.
  void LeaveCopies() {
    for (const char16_t* text : {u"damaged", u"one", u"two"}) {
      Run run(world.services.applicationFolder);
      run.editor.questions.EditField(FormField::Title, text);
      run.keeper.Left(Parting::Leave);
    }
    WriteBytes(RecoveryFilePath(RecoveryRoot(world.services.applicationFolder) / "1"), "damaged");
  }

  bool Offer(std::deque<RecoveryAnswer> given) {
    answers = std::move(given);
    asked.clear();
    return RecoverCommand(editor, keeper, *this).Run();
  }
};

TEST_F(OfferingRecovery, AsksForEachCopyUntilOneIsRestored) {
  using enum RecoveryAnswer;
  LeaveCopies();
  EXPECT_FALSE(Offer({Later}));
  EXPECT_EQ(asked.size(), 1u);
  const fs::path aside = RecoveryRoot(world.services.applicationFolder) / "1-damaged";
  EXPECT_EQ(world.dialogs.warnings, std::vector{u"[1044 " + AsText(aside) + u"]"});
  EXPECT_FALSE(Modified());
  EXPECT_FALSE(Offer({Discard, Later}));
  EXPECT_EQ(asked.size(), 2u);
  const std::u16string left = asked[1];
  EXPECT_TRUE(Offer({Restore}));
  EXPECT_EQ(asked, std::vector{left});
  EXPECT_EQ(editor.questions.Form().title, left);
  EXPECT_TRUE(Modified());
  SaveAs(folder / "restored.exm");
  EXPECT_FALSE(Offer({}));
  EXPECT_EQ(world.dialogs.warnings.size(), 1u);
}

TEST_F(OfferingRecovery, ACopyThatCouldNotBeRestoredWhollyStays) {
  Attach("note.txt", "note");
  keeper.Left(Parting::Leave);
  const fs::path link = RecoveryLinkPath(RecoveryRoot(world.services.applicationFolder) / "1", 1);
  fs::rename(link, folder / "out of reach");
  EXPECT_TRUE(Offer({RecoveryAnswer::Restore}));
  EXPECT_EQ(world.dialogs.warnings, std::vector<std::u16string>{u"[1045 note.txt]"});
  fs::rename(folder / "out of reach", link);
  SaveAs(folder / "restored.exm");
  EXPECT_TRUE(Offer({RecoveryAnswer::Restore}));
  EXPECT_EQ(ReadBytes(editor.state.Current().attachmentPaths[0]), "note");
}

}  // namespace
}  // namespace quorvantis::test
