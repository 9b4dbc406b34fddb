// SPDX-License-Identifier: MIT
// What a look of the history costs after a command, in an exam of 500 full questions, and the memory of
// 10,000 steps.
#include "history/History.h"

#include "BenchArguments.h"
#include "RatioReporter.h"
#include "cli/session/ExamSession.h"
#include "cli/session/UnseenEditor.h"

#include <iostream>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

namespace {

using namespace quorvantis;

constexpr int kSteps = 10'000;

std::filesystem::path folder = ".";

/// An editor on an exam whose texts have all the characters that fit, with a history or without.
class FullExam {
 public:
  explicit FullExam(bool withHistory) {
    for (int n = 1; n <= kMaxQuestions; ++n) {
      ExamQuestion& question = session_.exam.Question(n);
      const auto letter = static_cast<char16_t>(u'a' + n % 26);
      question.text = std::u16string(4096, letter);
      for (auto& option : question.options) option = std::u16string(256, letter);
      question.answerText = std::u16string(1024, letter);
      question.essayAnswer = std::u16string(4096, letter);
    }
    editor_.emplace(session_.exam);
    if (withHistory) history_.emplace(editor_->Editor());
  }

  ExamEditor& Editor() { return editor_->Editor(); }
  History* Steps() { return history_ ? &*history_ : nullptr; }

  void EndCommand() {
    if (history_) history_->Look();
  }

 private:
  std::istringstream noInput_;
  std::ostringstream output_;
  cli::Console console_{noInput_, output_, std::cerr};
  cli::ExamSession session_{console_, {folder / "history", false}};
  std::optional<cli::UnseenEditor> editor_;
  std::optional<History> history_;
};

void TypeALetter(ExamEditor& editor, int round) {
  std::u16string text = editor.questions.Form().text;
  if (text.empty()) text.push_back(u' ');
  text.back() = static_cast<char16_t>(u'a' + round % 26);
  editor.questions.EditField(FormField::Text, std::move(text));
}

/// Stores what was typed and shows another question.
void TypeAndWalk(ExamEditor& editor, int round) {
  TypeALetter(editor, round);
  round % 2 == 0 ? editor.questions.GoNext() : editor.questions.GoPrevious();
}

void InsertAndDelete(ExamEditor& editor, int round) {
  round % 2 == 0 ? editor.questions.InsertHere() : editor.questions.DeleteHere();
}

using Command = void (*)(ExamEditor&, int);

void Register(const std::string& name, Command command, bool withHistory) {
  const auto run = [command, withHistory](benchmark::State& state) {
    FullExam exam(withHistory);
    int round = 0;
    for (auto _ : state) {
      command(exam.Editor(), round++);
      exam.EndCommand();
    }
  };
  benchmark::RegisterBenchmark(name.c_str(), run)
      ->UseRealTime()
      ->Unit(benchmark::kMillisecond)
      ->Repetitions(5);
}

std::vector<bench::Comparison> RegisterAll() {
  const struct {
    const char* what;
    Command command;
  } kCommands[] = {
      {"type a letter", TypeALetter}, {"type and walk", TypeAndWalk}, {"insert, delete", InsertAndDelete}};
  std::vector<bench::Comparison> rows;
  for (const auto& [what, command] : kCommands) {
    const std::string name = what;
    Register(name + " with history", command, true);
    Register(name, command, false);
    rows.push_back(
        {name + ": a step, beyond the command", name + " with history", name, 2.0, bench::Measure::Beyond});
  }
  return rows;
}

/// Megabytes of steps of all three kinds.
double MemoryOfSteps() {
  FullExam exam(true);
  for (int n = 0; n < kSteps; ++n) {
    exam.Steps()->EndTyping();
    n % 10 == 0  ? InsertAndDelete(exam.Editor(), n / 10)
    : n % 3 == 0 ? TypeAndWalk(exam.Editor(), n / 3)
                 : TypeALetter(exam.Editor(), n);
    exam.EndCommand();
  }
  return exam.Steps()->HasForgotten() ? -1 : static_cast<double>(exam.Steps()->Size()) / (1024 * 1024);
}

}  // namespace

int main(int argumentCount, char** arguments) {
  folder = bench::TakeFolder(argumentCount, arguments);
  bench::RunComparisons(argumentCount, arguments, RegisterAll());
  const double memory = MemoryOfSteps();
  bench::PrintRow("memory of 10,000 steps", "", "",
                  memory < 0 ? "forgotten" : std::to_string(memory).substr(0, 4) + " MB", "< 64 MB");
  return 0;
}
