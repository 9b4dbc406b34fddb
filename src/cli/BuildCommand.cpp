// SPDX-License-Identifier: MIT
#include "cli/CommandError.h"
#include "cli/Commands.h"
#include "cli/ExamFromJson.h"
#include "cli/JsonNode.h"
#include "examfile/ExamFileWriter.h"

namespace quorvantis::cli {

void Build(Console& console, const CommonOptions& options, const std::filesystem::path& description,
           const std::filesystem::path& target) {
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
  for (const std::string& loss : LossesOnSaving(session.exam))
    console.Complain(description.string() + ": " + loss);
}

}  // namespace quorvantis::cli
