// SPDX-License-Identifier: MIT
#include "cli/CommandError.h"
#include "cli/Commands.h"
#include "cli/ExamFromJson.h"
#include "cli/JsonNode.h"
#include "cli/LossMessages.h"
#include "examfile/ExamFileWriter.h"

namespace quorvantis::cli {

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

}  // namespace quorvantis::cli
