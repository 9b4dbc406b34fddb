// SPDX-License-Identifier: MIT
#include "cli/exam/ExamSubcommands.h"
#include "cli/form/ExamJson.h"
#include "cli/form/KindNames.h"
#include "cli/form/PrintedOverview.h"
#include "cli/options/CommandOptions.h"
#include "cli/session/ExamSession.h"
#include "model/AnswerLetters.h"
#include "text/ControlCharacters.h"
#include "text/NumberText.h"
#include "text/Utf.h"

#include <nlohmann/json.hpp>

#include <ostream>

namespace quorvantis::cli {
namespace {

enum class ShowForm { Text, Json, Table };

struct ShowRequest {
  std::filesystem::path exam;
  bool json = false;
  bool table = false;

  ShowForm Form() const { return json ? ShowForm::Json : table ? ShowForm::Table : ShowForm::Text; }
};

constexpr std::string_view kIndent = "      ";

/// Text for a terminal: further lines indented, control characters as blanks.
std::string Printable(std::u16string_view text, std::string_view indent = kIndent) {
  std::u16string lines;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool lineEnd = text[i] == u'\r' || text[i] == u'\n';
    if (text[i] == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n') ++i;
    lines.push_back(lineEnd ? u'\n' : IsControl(text[i]) ? u' ' : text[i]);
  }
  std::string printable = Utf16ToUtf8(lines);
  for (std::size_t i = printable.find('\n'); i != std::string::npos; i = printable.find('\n', i + 1)) {
    printable.insert(i + 1, indent);
  }
  return printable;
}

std::string_view RandomModeText(RandomMode mode) {
  switch (mode) {
    case RandomMode::Off:
      return "off";
    case RandomMode::Options:
      return "options";
    case RandomMode::Sequence:
      return "sequence";
    default:
      return "unknown";
  }
}

void PrintAttachments(std::ostream& out, std::string_view indent, const AttachmentList& names,
                      const AttachmentList& paths) {
  for (const auto& [name, path] : ListedFiles(names, paths)) {
    std::error_code error;
    const auto size = std::filesystem::file_size(path, error);
    out << indent << "attached: " << Printable(name);
    if (error) {
      out << " (no content)\n";
    } else {
      out << " (" << size << " bytes)\n";
    }
  }
}

void PrintAnswer(std::ostream& out, const ExamQuestion& question) {
  for (std::size_t i = 0; i < kOptionCount; ++i) {
    if (!question.options[i].empty())
      out << "   " << static_cast<char>(OptionLetter(i)) << ". " << Printable(question.options[i]) << "\n";
  }
  if (AnswerOf(question.kind).options) out << "   answer: " << Printable(question.answerLetters) << "\n";
  if (!question.answerText.empty()) out << "   answer: " << Printable(question.answerText) << "\n";
  if (!question.essayAnswer.empty()) out << "   answer: " << Printable(question.essayAnswer) << "\n";
}

/// How many ranges apply: none while all questions have the same score, otherwise those before the first one
/// that is unused or begins after the last question.
std::size_t RangesInUse(const ExamPaper& exam) {
  if (HasOneScore(exam.scoreMode)) return 0;
  std::size_t count = 0;
  const auto applies = [&exam](std::size_t i) {
    return exam.scoreTo[i] != 0 && exam.scoreFrom[i] <= exam.questionCount;
  };
  while (count < kScoreRanges && applies(count)) ++count;
  return count;
}

void PrintRanges(std::ostream& out, const ExamPaper& exam) {
  out << "Scores: " << (HasOneScore(exam.scoreMode) ? "the same for every question" : "custom");
  const std::size_t count = RangesInUse(exam);
  for (std::size_t i = 0; i < count; ++i) {
    out << (i == 0 ? ": " : ", ") << exam.scoreFrom[i] << "-" << exam.scoreTo[i] << " = "
        << Utf16ToUtf8(FormatScore(exam.scoreValue[i]));
  }
  out << "\n";
}

void PrintExam(std::ostream& out, const FrameSetExam& exam, const ExamReadOutcome& outcome) {
  out << "Title: " << Printable(exam.title, "       ") << "\n"
      << "Format: " << outcome.form.version->name
      << (outcome.form.encoding == FieldEncoding::EightBit ? ", 8-bit text" : ", UTF-16") << "\n"
      << "Questions: " << exam.questionCount << "\n"
      << "Random: " << RandomModeText(exam.randomMode) << "\n";
  PrintRanges(out, exam);
  PrintAttachments(out, "", exam.examAttachmentNames, exam.examAttachmentPaths);
  for (int number = 1; number <= exam.questionCount; ++number) {
    const ExamQuestion& question = exam.Question(number);
    out << "\n"
        << number << ". [" << KindName(question.kind) << "] " << Printable(question.text, "   ") << "\n";
    PrintAnswer(out, question);
    PrintAttachments(out, "   ", question.attachmentNames, question.attachmentPaths);
  }
}

void Show(Console& console, const CommonOptions& options, const std::filesystem::path& exam, ShowForm form) {
  ExamSession session(console, options);
  const ExamReadOutcome outcome = session.Load(exam);
  switch (form) {
    case ShowForm::Json:
      console.out << ExamToJson(session.exam, outcome) << "\n";
      break;
    case ShowForm::Table:
      PrintOverview(console.out, session.exam);
      break;
    case ShowForm::Text:
      PrintExam(console.out, session.exam, outcome);
      break;
  }
}

}  // namespace

void AddShow(CLI::App& app, CommandContext& context) {
  CLI::App* show = AddCommand(app, context, "show", "List the content of an exam file");
  const auto request = std::make_shared<ShowRequest>();
  AddPath(*show, "EXAM", request->exam, "Exam file (.exm)");
  CLI::Option* json = show->add_flag("--json", request->json, "Print one JSON object");
  show->add_flag("--table", request->table, "Print a table with a line for each question")->excludes(json);
  show->callback(
      [&context, request] { Show(context.console, context.common, request->exam, request->Form()); });
}

}  // namespace quorvantis::cli
