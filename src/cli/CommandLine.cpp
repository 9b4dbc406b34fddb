// SPDX-License-Identifier: MIT
#include "cli/CommandLine.h"

#include "cli/CommandError.h"
#include "cli/Commands.h"
#include "cli/EditSession.h"
#include "cli/Version.h"

#include <CLI/CLI.hpp>

#include <iostream>

namespace quorvantis::cli {
namespace {

constexpr int kCommandFailed = 1;
constexpr int kWrongUsage = 2;

/// What the options of all commands are bound to.
struct Arguments {
  CommonOptions common;
  std::filesystem::path input;
  std::filesystem::path output;
  bool json = false;
  bool afterPreview = false;
  std::optional<std::string> student;
  std::optional<std::filesystem::path> responses;
};

CLI::App* AddCommand(CLI::App& app, const char* name, const char* description) {
  CLI::App* command = app.add_subcommand(name, description);
  command->fallthrough();  // options of every command may stand behind its own
  return command;
}

void AddShow(CLI::App& app, Arguments& arguments, Console& console) {
  CLI::App* show = AddCommand(app, "show", "List what is in an exam file");
  show->add_option("EXAM", arguments.input, "Exam file (.exm)")->required();
  show->add_flag("--json", arguments.json, "Print one JSON object");
  show->callback([&] { Show(console, arguments.common, arguments.input, arguments.json); });
}

void AddBuild(CLI::App& app, Arguments& arguments, Console& console) {
  CLI::App* build = AddCommand(app, "build", "Make an exam file from a JSON description");
  build->add_option("JSON", arguments.input, "Description, in the form that \"show --json\" prints")
      ->required();
  build->add_option("OUT", arguments.output, "Exam file to write")->required();
  build->footer(
      "An attached file is {\"path\": \"file relative to the JSON file\", \"name\": \"display name\"}.");
  build->callback([&] { Build(console, arguments.common, arguments.input, arguments.output); });
}

void AddUnpack(CLI::App& app, Arguments& arguments, Console& console) {
  CLI::App* unpack = AddCommand(app, "unpack", "Copy the attached files of an exam into a folder");
  unpack->add_option("EXAM", arguments.input, "Exam file (.exm)")->required();
  unpack->add_option("DIR", arguments.output, "Target folder; made if missing")->required();
  unpack->footer("Files go to DIR/exam and DIR/question-007.");
  unpack->callback([&] { Unpack(console, arguments.common, arguments.input, arguments.output); });
}

void AddPreview(CLI::App& app, Arguments& arguments, Console& console) {
  CLI::App* preview = AddCommand(app, "preview", "Write the pages of an exam's preview");
  preview->add_option("EXAM", arguments.input, "Exam file (.exm)")->required();
  preview->add_option("DIR", arguments.output, "Application folder for the pages; made if missing")
      ->required();
  preview->add_option("--student", arguments.student,
                      "Write the pages of the student with this number instead");
  preview->add_option("--responses", arguments.responses, "What the student has answered (JSON)");
  preview->footer(
      "Pages go to DIR/TEMP/ExamPreview, those of a student to DIR/~BrelmStudent/ID<number>. Responses are\n"
      "{\"resultScore\": 7.5, \"resultPageOption\": 0, \"responses\": [{\"number\": 1, \"text\": \"ac\", "
      "\"value\": 1}]}.");
  preview->callback([&] {
    Preview(console, arguments.common,
            {arguments.input, arguments.output, arguments.student, arguments.responses});
  });
}

void AddPrint(CLI::App& app, Arguments& arguments, Console& console) {
  CLI::App* print = AddCommand(app, "print", "Write the page of an exam that is printed");
  print->add_option("EXAM", arguments.input, "Exam file (.exm)")->required();
  print->add_option("DIR", arguments.output, "Application folder for DIR/exam_Print.htm; made if missing")
      ->required();
  print->add_flag("--after-preview", arguments.afterPreview,
                  "Write the preview first, which the print depends on");
  print->callback(
      [&] { Print(console, arguments.common, arguments.input, arguments.output, arguments.afterPreview); });
}

void AddEdit(CLI::App& app, Arguments& arguments, Console& console) {
  CLI::App* edit = AddCommand(app, "edit", "Edit an exam by a script");
  edit->add_option("SCRIPT", arguments.input, "Script file; standard input without it");
  edit->footer("One command a line, # begins a comment; a text with blanks or escapes is a JSON string:\n" +
               EditCommandHelp());
  edit->callback([&] {
    const bool named = !arguments.input.empty();
    Edit(console, arguments.common, named ? std::optional(arguments.input) : std::nullopt);
  });
}

int Parse(CLI::App& app, int argumentCount, const char* const* arguments, Console& console) {
  try {
    app.parse(argumentCount, arguments);
    return 0;
  } catch (const CLI::ParseError& problem) {
    const int status = app.exit(problem, console.out, console.err);
    return status == 0 ? 0 : kWrongUsage;
  } catch (const CommandError& problem) {
    console.Complain(problem.what());
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
  Arguments arguments;
  app.add_option("--app-folder", arguments.common.appFolder,
                 "Folder for work files and settings; a private one, removed at the end, without it");
  app.add_flag("--debug", arguments.common.debug, "Show debug lines on standard error");
  AddShow(app, arguments, console);
  AddBuild(app, arguments, console);
  AddUnpack(app, arguments, console);
  AddPreview(app, arguments, console);
  AddPrint(app, arguments, console);
  AddEdit(app, arguments, console);
  const int status = Parse(app, argumentCount, argumentValues, console);
  console.out.flush();
  if (console.out.good()) return status;
  console.Complain("standard output cannot be written");
  return kCommandFailed;
}

}  // namespace quorvantis::cli
