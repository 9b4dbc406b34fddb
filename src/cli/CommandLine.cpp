// SPDX-License-Identifier: MIT
#include "cli/CommandLine.h"

#include "check/CheckRules.h"
#include "cli/CommandError.h"
#include "cli/Commands.h"
#include "cli/EditSession.h"
#include "cli/PaperMarksFile.h"
#include "cli/Version.h"
#include "host/PlanWords.h"
#include "model/AnswerLetters.h"
#include "shell/language/LanguageId.h"
#include "text/Utf.h"
#include "versions/VersionNames.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <charconv>
#include <iostream>
#include <set>
#include <span>
#include <sstream>

namespace quorvantis::cli {
namespace {

constexpr int kWrongUsage = 2;

/// The variables that options are bound to.
struct ParsedArguments {
  CommonOptions common;
  std::filesystem::path input;
  std::filesystem::path output;
  bool json = false;
  bool table = false;
  bool afterPreview = false;
  SheetChoice sheet;
  bool csv = false;
  bool keepsRecovery = false;
  std::string recoveryCopy;
  std::optional<std::string> student;
  std::optional<std::filesystem::path> responses;
  ImportRequest import;
  ConvertRequest convert;
  LearnRequest learn;
  CheckRequest check;
  ExamCheckRequest examCheck;
  MatchRequest match;
  MakeVersionsRequest versions;
  std::vector<ScoreStep> scoreSteps;
  std::set<const CLI::Option*> mayBeEmpty;  ///< options for which an empty text is a valid value
};

/// The options of every command; they may also precede the command.
void AddCommonOptions(CLI::App& app, CommonOptions& options) {
  app.add_option("--app-folder", options.appFolder,
                 "Folder for work files and settings (default: a private one, removed at the end)")
      ->type_name("DIR");
  const auto takeLanguage = [&options](const std::string& text) {
    options.language = ParseLanguageId(text);
    if (!options.language) throw CLI::ValidationError("--language", "not an identifier: " + text);
  };
  app.add_option_function<std::string>(
         "--language", takeLanguage,
         "Show texts in the language of this identifier (\"quorvantis-cli languages\" lists them)")
      ->type_name("ID");
  app.add_flag("--debug", options.debug, "Show debug output on standard error");
}

CLI::App* AddCommand(CLI::App& app, ParsedArguments& arguments, const char* name, const char* description) {
  CLI::App* command = app.add_subcommand(name, description);
  AddCommonOptions(*command, arguments.common);
  return command;
}

/// An argument that names a file or folder.
void AddPath(CLI::App& command, const char* name, std::filesystem::path& path, const char* description) {
  command.add_option(name, path, description)->required()->type_name("");
}

/// An option that may be empty, which differs from being absent.
CLI::Option* AddText(CLI::App& command, const char* name, std::optional<std::string>& text,
                     const char* description, const char* type) {
  const auto take = [&text](const std::string& given) { text = given; };
  return command.add_option_function<std::string>(name, take, description)->type_name(type);
}

void AddShow(CLI::App& app, ParsedArguments& arguments, Console& console) {
  CLI::App* show = AddCommand(app, arguments, "show", "List the content of an exam file");
  AddPath(*show, "EXAM", arguments.input, "Exam file (.exm)");
  CLI::Option* json = show->add_flag("--json", arguments.json, "Print one JSON object");
  show->add_flag("--table", arguments.table, "Print a table with a line for each question")->excludes(json);
  show->callback([&] {
    const ShowForm form = arguments.json    ? ShowForm::Json
                          : arguments.table ? ShowForm::Table
                                            : ShowForm::Text;
    Show(console, arguments.common, arguments.input, form);
  });
}

/// Empty if it is the identifier of a rule of the check.
std::string WhyNoCheckRule(const std::string& id) {
  if (FindCheckRule(id) != nullptr) return {};
  std::string why = "there is no rule " + id + ". The rules are ";
  for (const CheckRuleRow& row : CheckRules())
    why.append(&row == &CheckRules().front() ? "" : ", ").append(row.id);
  return why;
}

void AddCheck(CLI::App& app, ParsedArguments& arguments, Console& console) {
  CLI::App* check = AddCommand(app, arguments, "check", "Look for mistakes in an exam");
  ExamCheckRequest& request = arguments.examCheck;
  AddPath(*check, "EXAM", request.exam, "Exam file (.exm)");
  check->add_flag("--json", request.json, "Print one JSON object");
  check->add_option("--ignore", request.ignore, "A rule not to check; may be given several times")
      ->type_name("ID")
      ->allow_extra_args(false)
      ->check(CLI::Validator(WhyNoCheckRule, ""));
  check->add_flag("--ignored", request.leavesOutIgnored,
                  "Also leave out what was ignored in the window,\nor in the folder of --app-folder");
  check->footer(
      "Prints a line for each finding, with its rule in brackets. Fails if something is wrong;\n"
      "what is doubtful and what is a hint does not count.");
  check->callback([&] { CheckExamFile(console, arguments.common, arguments.examCheck); });
}

void AddBuild(CLI::App& app, ParsedArguments& arguments, Console& console) {
  CLI::App* build = AddCommand(app, arguments, "build", "Make an exam file from JSON");
  AddPath(*build, "JSON", arguments.input, "JSON file, like the object that \"show --json\" prints");
  AddPath(*build, "OUT", arguments.output, "Exam file to write");
  build->footer(
      "An attached file is {\"path\": \"file relative to the JSON file\", \"name\": \"display name\"}.");
  build->callback([&] { Build(console, arguments.common, arguments.input, arguments.output); });
}

void AddUnpack(CLI::App& app, ParsedArguments& arguments, Console& console) {
  CLI::App* unpack = AddCommand(app, arguments, "unpack", "Copy the attached files of an exam into a folder");
  AddPath(*unpack, "EXAM", arguments.input, "Exam file (.exm)");
  AddPath(*unpack, "DIR", arguments.output, "Target folder; created if missing");
  unpack->footer("Files go to DIR/exam and DIR/question-007.");
  unpack->callback([&] { Unpack(console, arguments.common, arguments.input, arguments.output); });
}

void AddPreview(CLI::App& app, ParsedArguments& arguments, Console& console) {
  CLI::App* preview = AddCommand(app, arguments, "preview", "Write the pages of an exam's preview");
  AddPath(*preview, "EXAM", arguments.input, "Exam file (.exm)");
  AddPath(*preview, "DIR", arguments.output, "Application folder for the pages; created if missing");
  CLI::Option* student = AddText(*preview, "--student", arguments.student,
                                 "Write the pages of the student with this number instead", "ID");
  arguments.mayBeEmpty.insert(student);  // empty means number 0
  preview->add_option("--responses", arguments.responses, "The student's answers (JSON)")->type_name("FILE");
  preview->footer(
      "Pages go to DIR/TEMP/ExamPreview, those of a student to DIR/~BrelmStudent/ID<number>. Responses are\n"
      "{\"resultScore\": 7.5, \"resultPageOption\": 0, \"responses\": [{\"number\": 1, \"text\": \"ac\", "
      "\"value\": 1}]}.");
  preview->callback([&] {
    Preview(console, arguments.common,
            {arguments.input, arguments.output, arguments.student, arguments.responses});
  });
}

/// The flags that choose a sheet; at most one of them may be given. None of them goes with `other`.
void AddSheetChoice(CLI::App& command, SheetChoice& choice, CLI::Option* other) {
  std::vector<CLI::Option*> flags;
  const auto add = [&](const char* name, Sheet sheet, const char* description) {
    flags.push_back(command.add_flag_callback(
        name, [&choice, sheet] { choice.sheet = sheet; }, description));
  };
  add("--paper", Sheet::Paper, "The questions, laid out for paper");
  add("--key", Sheet::Key, "The right answers");
  add("--sheet", Sheet::Answers, "The sheet to answer on");
  add("--solutions", Sheet::Solutions, "The questions with the right answers");
  CLI::Option* large =
      command.add_flag("--large-print", choice.largePrint, "18 points and wide spacing, the same numbers");
  for (CLI::Option* flag : flags) {
    for (CLI::Option* another : flags) {
      if (flag != another) flag->excludes(another);
    }
    if (other != nullptr) flag->excludes(other);
  }
  if (other != nullptr) large->excludes(other);
}

void AddPrint(CLI::App& app, ParsedArguments& arguments, Console& console) {
  CLI::App* print = AddCommand(app, arguments, "print", "Write the page for printing an exam");
  AddPath(*print, "EXAM", arguments.input, "Exam file (.exm)");
  AddPath(*print, "DIR", arguments.output, "Application folder for DIR/exam_Print.htm; created if missing");
  CLI::Option* after = print->add_flag("--after-preview", arguments.afterPreview,
                                       "Write the preview first, which the print depends on");
  AddSheetChoice(*print, arguments.sheet, after);
  print->footer(
      "A sheet goes to DIR/exam_Paper.htm, exam_Key.htm, exam_Answers.htm or exam_Solutions.htm instead.");
  print->callback([&] {
    if (arguments.sheet.sheet || arguments.sheet.largePrint)
      return PrintSheet(console, arguments.common, arguments.input, arguments.output, arguments.sheet);
    Print(console, arguments.common, arguments.input, arguments.output, arguments.afterPreview);
  });
}

void AddPdf(CLI::App& app, ParsedArguments& arguments, Console& console) {
  CLI::App* pdf = AddCommand(app, arguments, "pdf", "Make a PDF file of an exam: paper, key or answer sheet");
  AddPath(*pdf, "EXAM", arguments.input, "Exam file (.exm)");
  AddPath(*pdf, "OUT", arguments.output, "PDF file to write");
  AddSheetChoice(*pdf, arguments.sheet, nullptr);
  pdf->footer("Without a choice, the paper. Needs the program quorvantis-pdf, which comes with the window.");
  pdf->callback(
      [&] { MakePdf(console, arguments.common, arguments.input, arguments.output, arguments.sheet); });
}

void AddKey(CLI::App& app, ParsedArguments& arguments, Console& console) {
  CLI::App* key = AddCommand(app, arguments, "key", "Print the right answers of an exam");
  AddPath(*key, "EXAM", arguments.input, "Exam file (.exm)");
  key->add_flag("--csv", arguments.csv, "Print a table for spreadsheets");
  key->footer("A line for each question: number, kind, key and score, with tabs between them.");
  key->callback([&] { PrintKey(console, arguments.common, arguments.input, arguments.csv); });
}

/// An option that is one more step of the score setup. Parsed as soon as it is met, so that steps with
/// different option names keep their order on the command line.
void AddScoreStep(CLI::App& score, std::vector<ScoreStep>& steps, const char* name,
                  ScoreStep (*step)(std::string_view), const char* type, const char* description) {
  const auto take = [&steps, name, step](const std::string& text) {
    try {
      steps.push_back(step(text));
    } catch (const CommandError& problem) {
      throw CLI::ValidationError(name, problem.what());
    }
  };
  score.add_option_function<std::string>(name, take, description)->trigger_on_parse()->type_name(type);
}

void AddScore(CLI::App& app, ParsedArguments& arguments, Console& console) {
  CLI::App* score = AddCommand(app, arguments, "score", "Change the score distribution of an exam");
  AddPath(*score, "EXAM", arguments.input, "Exam file (.exm)");
  AddPath(*score, "OUT", arguments.output, "Exam file to write");
  const auto end = [](std::string_view text) { return AssignmentStep(ScoreStep::Kind::End, text); };
  const auto value = [](std::string_view text) { return AssignmentStep(ScoreStep::Kind::Score, text); };
  auto& steps = arguments.scoreSteps;
  AddScoreStep(*score, steps, "--mode", ModeStep, "same|custom", "One score for all questions, or ranges");
  AddScoreStep(*score, steps, "--end", end, "RANGE=QUESTION", "End a range (1 to 10) with this question");
  AddScoreStep(*score, steps, "--value", value, "RANGE=SCORE", "The score of each question of a range");
  score->footer(
      "Options take effect in the order given, as if typed into the score settings of the window,\n"
      "and may be repeated. Ends re-cut the neighbouring ranges and reset scores, so give ends first.");
  score->callback(
      [&] { Score(console, arguments.common, arguments.input, arguments.output, arguments.scoreSteps); });
}

void AddExport(CLI::App& app, ParsedArguments& arguments, Console& console) {
  CLI::App* command = AddCommand(app, arguments, "export", "Write an exam as a word-processor document");
  AddPath(*command, "EXAM", arguments.input, "Exam file (.exm)");
  AddPath(*command, "OUT", arguments.output, "Document to write: .doc, .docx or .pdf");
  command->footer(
      "The document has the title, the scores, and the questions with their options and typed answers.\n"
      "Requires LibreOffice.");
  command->callback([&] { Export(console, arguments.common, arguments.input, arguments.output); });
}

void AddConvert(CLI::App& app, ParsedArguments& arguments, Console& console) {
  CLI::App* command =
      AddCommand(app, arguments, "convert", "Convert between exams and files of learning systems");
  ConvertRequest& request = arguments.convert;
  AddPath(*command, "IN", request.source, "File to read");
  AddPath(*command, "OUT", request.target, "File to write");
  command->add_option("--from", request.from, "Format of IN (default: recognised by its content)")
      ->type_name("F");
  command->add_option("--to", request.to, "Format of OUT (default: that of its extension)")->type_name("F");
  command->add_flag("--strict", request.isStrict, "Write nothing if something would be lost");
  command->footer("Formats to read: " + ReadableFormats() + ".\nFormats to write: " + WritableFormats() +
                  ".\nTells on standard error what is lost, question by question.");
  command->callback([&] { Convert(console, arguments.common, arguments.convert); });
}

void AddEdit(CLI::App& app, ParsedArguments& arguments, Console& console) {
  CLI::App* edit = AddCommand(app, arguments, "edit", "Edit an exam with a script");
  edit->add_option("SCRIPT", arguments.input, "Script file (default: standard input)")->type_name("");
  edit->add_flag("--recovery", arguments.keepsRecovery,
                 "After each line, keep a copy of unsaved work in the application folder");
  edit->footer("One command per line; # begins a comment; a text with blanks or escapes is a JSON string:\n" +
               EditCommandHelp());
  edit->callback([&] {
    const bool named = !arguments.input.empty();
    Edit(console, arguments.common, named ? std::optional(arguments.input) : std::nullopt,
         arguments.keepsRecovery);
  });
}

void AddRecover(CLI::App& app, ParsedArguments& arguments, Console& console) {
  CLI::App* recover = AddCommand(app, arguments, "recover", "List or save exams that an editor did not save");
  CLI::Option* copy =
      recover->add_option("COPY", arguments.recoveryCopy, "Copy to save, as listed")->type_name("");
  CLI::Option* target =
      recover->add_option("OUT", arguments.output, "Exam file to write; the copy is kept")->type_name("");
  copy->needs(target);
  recover->footer(
      "Prints a line for each: name, time, number of questions, file and title, with tabs between them.\n"
      "Without --app-folder, the folder is that of the window.");
  recover->callback([&] { Recover(console, arguments.common, arguments.recoveryCopy, arguments.output); });
}

void AddLanguages(CLI::App& app, ParsedArguments& arguments, Console& console) {
  CLI::App* languages = AddCommand(app, arguments, "languages", "List the installed languages");
  languages->footer("One line each: identifier, name, file.");
  languages->callback([&] { ListLanguages(console, arguments.common); });
}

/// Digits only: the reader of numbers would accept "0x10" and "010" as other numbers.
CLI::Validator IsDecimal() {
  const auto check = [](const std::string& text) {
    const bool isDecimal = !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
    return isDecimal ? std::string() : text + " is not a number";
  };
  return {check, "", "decimal"};
}

CLI::Option* AddRulesFile(CLI::App& command, std::filesystem::path& rules) {
  return command
      .add_option("--rules", rules,
                  "The file with the rules (default: ImportExam.ini of the\napplication folder, or beside "
                  "the program)")
      ->type_name("FILE");
}

CLI::Option* AddRepositoryName(CLI::App& command, std::string& repository) {
  return command
      .add_option("--repository", repository,
                  "The beginning of the repository's name, or # and its section's number")
      ->type_name("NAME");
}

CLI::Option* AddMarks(CLI::App& command, std::filesystem::path& marks) {
  return command.add_option("--marks", marks, "What parts of the paper are (JSON)")->type_name("FILE");
}

std::string MarksHelp() {
  return "Marks are a list of {\"text\": \"B)\", \"nth\": 1, \"role\": \"option-label\"}, or with \"begin\" "
         "and "
         "\"end\" instead,\nin UTF-16 units of the text that --text writes. Roles: " +
         RoleWordList() + ".";
}

void AddLearning(CLI::App& command, ImportRequest& request) {
  CLI::Option* rules = AddRulesFile(command, request.rules);
  CLI::Option* name = AddRepositoryName(command, request.repository);
  CLI::Option* learn =
      command.add_flag("--learn", request.learns, "Work out the rules from the paper itself");
  learn->excludes(rules)->excludes(name);
  AddMarks(command, request.marks)->needs(learn);
}

void AddImportOptions(CLI::App& command, ImportRequest& request) {
  const std::vector<std::string> answers{"give-up", "ignore", "force"};
  AddLearning(command, request);
  CLI::Option* into = command.add_option("--into", request.into, "Continue in this exam")->type_name("EXAM");
  CLI::Option* after =
      command.add_option("--after", request.after, "The question after which to continue, from 0")
          ->type_name("N")
          ->check(IsDecimal())
          ->check(CLI::Range(0, kMaxQuestions - 1))
          ->needs(into);
  into->needs(after);
  command.add_option("--answer-pictures", request.pictures, "What to do with pictures in answers")
      ->type_name("X")
      ->check(CLI::IsMember(answers));
  command.add_option("--formulas", request.formulas, "What to do with formulas")
      ->type_name("X")
      ->check(CLI::IsMember(answers));
  command.add_flag("--mend-line-ends", request.mendLineEnds,
                   "End the lines of imported texts with CR LF, which pages show whole");
  command.add_option("--marked", request.markedFile, "Also write the marked text")->type_name("FILE");
  command.add_option("--text", request.textFile, "Also write the document's text")->type_name("FILE");
}

void AddImport(CLI::App& app, ParsedArguments& arguments, Console& console) {
  // clang-format mistakes a line that begins with "import" for a module import.
  CLI::App* command = AddCommand(app, arguments, "import", "Make an exam from a question paper, by rules");
  AddPath(*command, "DOCUMENT", arguments.import.document,
          "Question paper: .doc, .docx, .odt, .rtf, .txt or .md");
  AddPath(*command, "OUT", arguments.import.target, "Exam file to write");
  AddImportOptions(*command, arguments.import);
  command->footer(
      "X is give-up, ignore (leave out such questions) or force. Prints what was read, and what was not.\n" +
      MarksHelp());
  command->callback([&] {
    const bool hasRules = arguments.import.learns || !arguments.import.repository.empty();
    if (!hasRules) throw CLI::RequiredError("--repository or --learn");
    Import(console, arguments.common, arguments.import);
  });
}

void AddRulesLearn(CLI::App& rules, ParsedArguments& arguments, Console& console) {
  CLI::App* learn = AddCommand(rules, arguments, "learn", "Work out the rules of a question paper");
  LearnRequest& request = arguments.learn;
  AddPath(*learn, "PAPER", request.paper, "Question paper: .doc, .docx, .odt, .rtf, .txt or .md");
  AddMarks(*learn, request.marks);
  learn->add_option("--repository", request.repository, "The name of the rules (default: that of the paper)")
      ->type_name("NAME");
  learn->add_option("--ini", request.rules, "Add the rules to this file instead of printing them")
      ->type_name("FILE");
  learn->add_option("--text", request.text, "Also write the paper's text")->type_name("FILE");
  learn->footer(
      "Prints a whole file of rules; --ini adds them to those of a file.\n"
      "Tells on standard error what was understood, and what to look at.\n" +
      MarksHelp());
  learn->callback([&] { LearnRepository(console, arguments.common, arguments.learn); });
}

void AddRulesCheck(CLI::App& rules, ParsedArguments& arguments, Console& console) {
  CLI::App* check = AddCommand(rules, arguments, "check", "Show what rules make of a question paper");
  CheckRequest& request = arguments.check;
  AddPath(*check, "PAPER", request.paper, "Question paper: .doc, .docx, .odt, .rtf, .txt or .md");
  AddRepositoryName(*check, request.repository)->required();
  AddRulesFile(*check, request.rules);
  check->footer(
      "Prints what each rule matches, the lines that nothing takes, and the questions.\n"
      "Fails if less than 90 % of the text is explained.");
  check->callback([&] { CheckRepository(console, arguments.common, arguments.check); });
}

void AddRules(CLI::App& app, ParsedArguments& arguments, Console& console) {
  CLI::App* rules = app.add_subcommand("rules", "Work out or check the rules for a question paper");
  AddCommonOptions(*rules, arguments.common);
  rules->require_subcommand(1);
  AddRulesLearn(*rules, arguments, console);
  AddRulesCheck(*rules, arguments, console);
}

/// "A,B,C" as the names of versions.
CLI::Option* AddVersionNames(CLI::App& command, VersionRequest& request) {
  const auto take = [&request](const std::string& text) {
    request.names.clear();
    for (std::size_t at = 0; at <= text.size();) {
      const std::size_t end = std::min(text.find(',', at), text.size());
      request.names.push_back(Utf8ToUtf16(std::string_view(text).substr(at, end - at)));
      at = end + 1;
    }
  };
  return command
      .add_option_function<std::string>("--names", take, "The names of the versions (default: A,B,…)")
      ->type_name("A,B,…");
}

/// "3,7B" as what keeps its place: question 3, and option B of question 7.
void AddKeptParts(CLI::App& command, TeacherPins& pins) {
  const auto take = [&pins](const std::string& text) {
    std::istringstream parts(text);
    for (std::string part; std::getline(parts, part, ',');) {
      int number = 0;
      const char* const end = part.data() + part.size();
      const auto [rest, error] = std::from_chars(part.data(), end, number);
      const auto option = end - rest == 1 ? OptionIndex(static_cast<char16_t>(*rest)) : std::nullopt;
      if (error != std::errc() || !IsQuestionNumber(number) || (rest != end && !option))
        throw CLI::ValidationError("--keep", "neither a question nor an option: " + part);
      if (option)
        pins.options.insert({number, *option});
      else
        pins.questions.insert(number);
    }
  };
  command.add_option_function<std::string>("--keep", take, "Questions, and options of questions, that stay")
      ->type_name("3,7B,…");
}

void AddVersionMoves(CLI::App& command, VersionRequest& request) {
  const auto takeMoves = [&request](const std::string& word) { request.moves = *MovesOfWord(word); };
  command
      .add_option_function<std::string>("--questions", takeMoves,
                                        "How far questions move (default: neighbours of one kind and score)")
      ->type_name("HOW")
      ->check(CLI::IsMember({"none", "neighbours", "within-kind", "within-score", "all"}));
  const auto takeOptions = [&request](const std::string& word) { request.movesOptions = word == "on"; };
  command.add_option_function<std::string>("--options", takeOptions, "Whether options move (default: on)")
      ->type_name("on|off")
      ->check(CLI::IsMember({"on", "off"}));
}

void AddVersionsMake(CLI::App& versions, ParsedArguments& arguments, Console& console) {
  CLI::App* make =
      AddCommand(versions, arguments, "make", "Make shuffled versions of an exam with their keys");
  MakeVersionsRequest& request = arguments.versions;
  AddPath(*make, "EXAM", request.exam, "Exam file (.exm)");
  const auto takeCount = [&request](const std::size_t& count) { request.request.names = LetterNames(count); };
  CLI::Option* count = make->add_option_function<std::size_t>("--count", takeCount, "How many, 1 to 26")
                           ->type_name("N")
                           ->check(IsDecimal())
                           ->check(CLI::Range(std::size_t{1}, kMaxVersions));
  count->excludes(AddVersionNames(*make, request.request));
  const auto takeSeed = [&request](const std::string& digits) {
    const char* const end = digits.data() + digits.size();
    const auto [last, error] = std::from_chars(digits.data(), end, request.request.seed);
    if (error != std::errc() || last != end) throw CLI::ValidationError("--seed", digits + " is too large");
    request.hasSeed = true;
  };
  make->add_option_function<std::string>("--seed", takeSeed,
                                         "The number that decides the shuffle (default: random)")
      ->type_name("S")
      ->check(IsDecimal());
  make->add_option("--out", request.folder, "The folder to make (default: \"EXAM versions\" beside the exam)")
      ->type_name("DIR");
  AddVersionMoves(*make, request.request);
  AddKeptParts(*make, request.request.pins);
  make->add_flag("--replace", request.replaces, "Replace versions of this exam that were made there before");
  const auto skipSheets = [&request] { request.printsSheets = false; };
  make->add_flag_callback("--no-pdf", skipSheets, "Make no PDF files, which take most of the time");
  make->footer(
      "HOW is none, neighbours, within-kind, within-score or all; each question keeps its score.\n"
      "The same exam, seed and options give the same versions everywhere. All is verified at the end.");
  make->callback([&] {
    if (arguments.versions.request.names.empty()) throw CLI::RequiredError("--count or --names");
    MakeVersions(console, arguments.common, arguments.versions);
  });
}

void AddVersionsVerify(CLI::App& versions, ParsedArguments& arguments, Console& console) {
  CLI::App* verify = AddCommand(versions, arguments, "verify", "Check versions and keys against their exam");
  AddPath(*verify, "DIR", arguments.output, "Folder of versions");
  verify->add_option("--source", arguments.input, "The exam (default: where it was when they were made)")
      ->type_name("EXAM");
  verify->footer("Says which file differs, and where. Fails if a single byte has changed.");
  verify->callback([&] { VerifyVersions(console, arguments.common, arguments.output, arguments.input); });
}

void AddVersions(CLI::App& app, ParsedArguments& arguments, Console& console) {
  CLI::App* versions = app.add_subcommand("versions", "Make or check shuffled versions of an exam");
  AddCommonOptions(*versions, arguments.common);
  versions->require_subcommand(1);
  AddVersionsMake(*versions, arguments, console);
  AddVersionsVerify(*versions, arguments, console);
}

void AddMatch(CLI::App& app, ParsedArguments& arguments, Console& console) {
  CLI::App* match = AddCommand(app, arguments, "match", "Try a pattern of import rules on a text");
  const auto add = [match](const char* name, auto& target, const char* description, const char* type) {
    return match->add_option(name, target, description)->type_name(type);
  };
  MatchRequest& request = arguments.match;
  CLI::Option* pattern = AddText(*match, "PATTERN", request.pattern, "Pattern to try", "");
  add("--flags", request.flags,
      "Sum of 1 single-line, 2 multi-line, 4 global, 8 ignore case,\n16 right-to-left, 32 extended; "
      "default 3",
      "N")
      ->check(CLI::Range(0, 63));
  add("--start", request.start, "Where the scan begins, in UTF-16 units", "N");
  CLI::Option* text = AddText(*match, "--text", request.text, "Text to search", "TEXT");
  CLI::Option* file =
      add("--text-file", request.textFile, "File with the text (default: standard input)", "FILE");
  CLI::Option* batch = add("--batch", request.batch,
                           "File with a {\"pattern\": …, \"flags\": …, \"text\": …} on each line", "FILE");
  text->excludes(file)->excludes(batch);
  batch->excludes(file)->excludes(pattern);
  arguments.mayBeEmpty.insert({pattern, text});
  match->footer("Prints where the groups matched, in UTF-16 units, as one JSON object.");
  match->callback([&console, &request] {
    if (!request.pattern && !request.batch) throw CLI::RequiredError("PATTERN or --batch");
    Match(console, request);
  });
}

/// An empty argument is a mistake in the calling script, most likely an unset variable. It must not count as
/// absent, or as the current folder.
void RefuseEmptyArguments(CLI::App& command, const std::set<const CLI::Option*>& mayBeEmpty) {
  const auto refuse = [](const std::string& value) { return std::string(value.empty() ? "is empty" : ""); };
  for (CLI::Option* option : command.get_options()) {
    if (option->get_items_expected_max() > 0 && !mayBeEmpty.contains(option))
      option->transform(CLI::Validator(refuse, ""));
  }
  for (CLI::App* subcommand : command.get_subcommands({})) RefuseEmptyArguments(*subcommand, mayBeEmpty);
}

/// The arguments in reverse order, as the parser wants them. It would take the argument after "--name=" as
/// its value, so that is given an empty one.
std::vector<std::string> ReversedArguments(int count, const char* const* values) {
  std::vector<std::string> arguments;
  bool optionsEnded = false;
  for (const char* value : std::span(values, static_cast<std::size_t>(count)).subspan(1)) {
    std::string argument = value;
    optionsEnded = optionsEnded || argument == "--";
    const bool hasEmptyValue = !optionsEnded && argument.starts_with("--") && argument.ends_with('=') &&
                               argument.find('=') == argument.size() - 1;
    if (hasEmptyValue) argument.pop_back();
    arguments.push_back(std::move(argument));
    if (hasEmptyValue) arguments.emplace_back();
  }
  std::ranges::reverse(arguments);
  return arguments;
}

/// Names a command that does not exist, which CLI11 would report as a missing one.
bool IsUnknownCommand(const CLI::App& app, int argumentCount, const char* const* arguments) {
  const std::string first = argumentCount > 1 ? arguments[1] : "-";
  const auto named = [&](const CLI::App* command) { return command->get_name() == first; };
  return !first.starts_with('-') && app.get_subcommands(named).empty();
}

int Parse(CLI::App& app, int argumentCount, const char* const* arguments, Console& console) {
  try {
    app.parse(ReversedArguments(argumentCount, arguments));
    return 0;
  } catch (const CLI::ParseError& problem) {
    const int status = app.exit(problem, console.out, console.err);
    return status == 0 ? 0 : kWrongUsage;
  } catch (const CommandError& problem) {
    console.Complain(problem.what());
    return problem.Status();
  } catch (const std::bad_alloc&) {
    console.Complain("there is not enough memory");
  } catch (const std::exception& problem) {
    console.Complain(problem.what());
  }
  return kCommandFailed;
}

}  // namespace

int RunCommandLine(int argumentCount, const char* const* argumentValues, Console& console) {
  CLI::App app("Reads, writes and edits Quorvantis exam files.", "quorvantis-cli");
  app.set_version_flag("--version", std::string("quorvantis-cli ") + kVersion);
  app.require_subcommand(1);
  ParsedArguments arguments;
  AddCommonOptions(app, arguments.common);
  AddShow(app, arguments, console);
  AddCheck(app, arguments, console);
  AddBuild(app, arguments, console);
  AddUnpack(app, arguments, console);
  AddPreview(app, arguments, console);
  AddPrint(app, arguments, console);
  AddPdf(app, arguments, console);
  AddKey(app, arguments, console);
  AddScore(app, arguments, console);
  AddExport(app, arguments, console);
  AddConvert(app, arguments, console);
  AddEdit(app, arguments, console);
  AddRecover(app, arguments, console);
  AddLanguages(app, arguments, console);
  AddImport(app, arguments, console);
  AddRules(app, arguments, console);
  AddVersions(app, arguments, console);
  AddMatch(app, arguments, console);
  RefuseEmptyArguments(app, arguments.mayBeEmpty);
  if (IsUnknownCommand(app, argumentCount, argumentValues)) {
    console.Complain("unknown command \"" + std::string(argumentValues[1]) + "\"; see quorvantis-cli --help");
    return kWrongUsage;
  }
  const int status = Parse(app, argumentCount, argumentValues, console);
  console.out.flush();
  if (console.out.good()) return status;
  console.Complain("standard output cannot be written");
  return kCommandFailed;
}

}  // namespace quorvantis::cli
