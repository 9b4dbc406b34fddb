// SPDX-License-Identifier: MIT
#include "cli/CommandError.h"
#include "cli/Commands.h"
#include "cli/ExamFromJson.h"
#include "examfile/ExamFileWriter.h"

#include <nlohmann/json.hpp>

#include <fstream>

namespace quorvantis::cli {
namespace {

nlohmann::json ParseDescription(const std::filesystem::path& file) {
  std::error_code error;
  std::ifstream in;
  if (std::filesystem::is_regular_file(file, error)) in.open(file, std::ios::binary);
  if (!in.is_open()) throw CommandError(file.string() + ": cannot be opened. " + WhyUnreadable(file));
  try {
    return nlohmann::json::parse(in);
  } catch (const nlohmann::json::exception& problem) {
    const std::string_view text = problem.what();
    throw CommandError(file.string() +
                       ": is not valid JSON: " + std::string(text.substr(text.find(']') + 2)));
  }
}

}  // namespace

void Build(Console& console, const CommonOptions& options, const std::filesystem::path& description,
           const std::filesystem::path& target) {
  ExamSession session(console, options);
  const nlohmann::json json = ParseDescription(description);
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
