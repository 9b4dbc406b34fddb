// SPDX-License-Identifier: MIT
#include "cli/console/CommandError.h"
#include "cli/exam/ExamSubcommands.h"
#include "cli/form/ExamFromJson.h"
#include "cli/form/JsonNode.h"
#include "cli/options/CommandOptions.h"
#include "cli/session/ExamSession.h"
#include "cli/session/LossMessages.h"
#include "examfile/ExamFileWriter.h"

namespace quorvantis::cli {
namespace {

struct BuildRequest {
  std::filesystem::path description;
  std::filesystem::path target;
};

void Build(Console& console, const CommonOptions& options, const std::filesystem::path& description,
           const std::filesystem::path& target) {
  std::error_code ignored;
  if (std::filesystem::equivalent(description, target, ignored)) {
    throw CommandError(target.string() + ": is the description itself; name another file for the exam");
  }
  ExamSession session(console, options);
  const nlohmann::json json = ParseJsonFile(description);
  const auto baseFolder = std::filesystem::absolute(description).parent_path();
  try {
    FillExam(session.exam, json, baseFolder);
  } catch (const CommandError& problem) {
    throw CommandError(description.string() + ": " + problem.what());
  }
  if (const auto error = ExamFileWriter(session.exam, session.services).Write(target)) {
    throw CommandError(target.string() + ": cannot be written: " + error.message());
  }
  TellSavingLosses(console, description, session.exam);
}

}  // namespace

void AddBuild(CLI::App& app, CommandContext& context) {
  CLI::App* build = AddCommand(app, context, "build", "Make an exam file from JSON");
  const auto request = std::make_shared<BuildRequest>();
  AddPath(*build, "JSON", request->description, "JSON file, like the object that \"show --json\" prints");
  AddPath(*build, "OUT", request->target, "Exam file to write");
  build->footer(
      "An attached file is {\"path\": \"file relative to the JSON file\", \"name\": \"display name\"}.");
  build->callback(
      [&context, request] { Build(context.console, context.common, request->description, request->target); });
}

}  // namespace quorvantis::cli
