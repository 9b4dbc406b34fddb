// SPDX-License-Identifier: MIT
// Kills scripted editors at any moment, without warning.
#include "RecoveryTest.h"
#include "text/NumberText.h"

#include <csignal>
#include <random>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

/// A person at an editor; does the same for the same seed.
class Typist {
 public:
  Typist(ExamEditor& editor, fs::path folder, unsigned seed)
      : editor_(editor), folder_(std::move(folder)), random_(seed) {}

  /// The first step gives the exam a title: no copy is offered of an empty exam.
  void Step() {
    if (std::exchange(isFirst_, false)) {
      editor_.questions.EditField(FormField::Title, u"title");
      return;
    }
    switch (Below(12)) {
      case 0:
        return editor_.questions.GoNext();
      case 1:
        return editor_.questions.GoPrevious();
      case 2:
        return editor_.questions.InsertHere();
      case 3:
        return editor_.questions.DeleteHere();
      case 4:
        return editor_.questions.SelectKind(static_cast<QuestionKind>(Below(4)));
      case 5:
        return editor_.questions.TickAnswerBox(Below(kOptionCount), Below(2) == 0);
      case 6:
        return editor_.attachments.AttachQuestionFile(NewFile());
      case 7:
        return editor_.attachments.AttachExamFile(NewFile());
      case 8:
        editor_.attachments.SelectQuestionFile(FirstOf(editor_.attachments.QuestionList()));
        return editor_.attachments.RemoveSelectedAttachment(AttachedTo::Question);
      default:
        const auto field = static_cast<FormField>(Below(9));
        const std::u16string text = Below(20) == 0 ? std::u16string(MaxLength(field), u'm') : Word();
        editor_.questions.EditField(field, editor_.questions.Form().Field(field) + text);
    }
  }

 private:
  unsigned Below(unsigned limit) { return static_cast<unsigned>(random_() % limit); }
  std::u16string Word() { return u" " + FormatInteger(Below(100000)); }
  fs::path NewFile() {
    const std::string name = std::to_string(Below(3)) + "/" + std::to_string(Below(3)) + ".txt";
    return WriteBytes(folder_ / name, std::to_string(Below(100000)));
  }
  static std::optional<std::size_t> FirstOf(const ShownAttachments& list) {
    return list.names.empty() ? std::nullopt : std::optional<std::size_t>(0);
  }

  ExamEditor& editor_;
  const fs::path folder_;
  std::minstd_rand random_;
  bool isFirst_ = true;
};

/// A hash of the exam, with the content of its work copies in place of their paths.
std::size_t Essence(ExamEditor& editor) {
  const FrameSetExam original = editor.state.document;
  FrameSetExam exam = original;
  const auto intoPaths = [](AttachmentList& paths) {
    for (auto& path : paths) {
      const std::string content = ReadBytes(path);
      path = std::u16string(content.begin(), content.end());
    }
  };
  intoPaths(exam.examAttachmentPaths);
  for (int n = 1; n <= kMaxQuestions; ++n) intoPaths(exam.Question(n).attachmentPaths);
  editor.changes.Replace(std::move(exam));
  const std::size_t essence = TakeSnapshot(editor).substance;
  editor.changes.Replace(original);
  return essence;
}

class Killing : public RecoveryTest {
 protected:
  /// In a separate process: works until it is killed, and reports after every step that has been kept.
  pid_t StartTypist(unsigned seed, int report) {
    const pid_t child = ::fork();
    if (child != 0) return child;
    Run run(folder / "app");
    Typist typist(run.editor, folder / "files", seed);
    for (char step = 1; step < 100; ++step) {
      typist.Step();
      run.keeper.LookAndWait();
      if (::write(report, &step, 1) != 1) break;
    }
    ::pause();
    ::_exit(0);
  }

  /// The typist's exam after `steps` steps, and after one more.
  std::pair<std::size_t, std::size_t> Expected(unsigned seed, int steps) {
    Run run(folder / "twin");
    Typist typist(run.editor, folder / "files", seed);
    for (int i = 0; i < steps; ++i) typist.Step();
    const std::size_t kept = Essence(run.editor);
    typist.Step();
    return {kept, Essence(run.editor)};
  }

  std::size_t Restored() {
    Run run(folder / "app");
    const auto found = FindRecoveryCopies(run.world.services);
    EXPECT_TRUE(found.damaged.empty());
    EXPECT_LE(found.copies.size(), 1u);
    if (!found.copies.empty()) {
      EXPECT_EQ(RestoreExam(found.copies[0].folder, run.editor), std::vector<std::u16string>());
    }
    return Essence(run.editor);
  }
};

TEST_F(Killing, LosesNothingThatWasKept) {
  constexpr int kRounds = 60;
  std::minstd_rand random(7);
  int kills = 0;
  for (unsigned round = 0; round < kRounds; ++round) {
    SCOPED_TRACE(round);
    int report[2];
    ASSERT_EQ(::pipe(report), 0);
    const pid_t child = StartTypist(round, report[1]);
    ::close(report[1]);
    char step = 0;
    const auto last = static_cast<char>(random() % 20);
    while (step < last && ::read(report[0], &step, 1) == 1) {
    }
    ::usleep(static_cast<useconds_t>(random() % 2000));
    ASSERT_EQ(::kill(child, SIGKILL), 0);
    ::waitpid(child, nullptr, 0);
    while (::read(report[0], &step, 1) == 1) {
    }
    ::close(report[0]);
    kills += step < 99 ? 1 : 0;
    const std::size_t restored = Restored();
    const auto [kept, oneMore] = Expected(round, step);
    EXPECT_TRUE(restored == kept || restored == oneMore) << "after step " << int{step};
    fs::remove_all(folder / "twin");
    fs::remove_all(folder / "app");
    if (HasFailure()) return;
  }
  EXPECT_GT(kills, kRounds / 2) << "few were killed at work";
}

}  // namespace
}  // namespace quorvantis::test
