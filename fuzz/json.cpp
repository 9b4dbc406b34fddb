// SPDX-License-Identifier: MIT
// Feeds any bytes to the JSON inputs of the command line: the description of an exam, responses to an exam,
// and the lines of an editing script. Unusable input is a CommandError, and an exam that was built must be
// the same after another round trip through its description.
#include "cli/console/CommandError.h"
#include "cli/edit/EditScriptLine.h"
#include "cli/form/ExamFromJson.h"
#include "cli/form/ExamJson.h"
#include "cli/form/JsonNode.h"
#include "cli/form/Responses.h"
#include "platform/posix/PosixFiles.h"
#include "support/RecordingWorld.h"
#include "support/TemporaryFolder.h"

#include <nlohmann/json.hpp>

#include <cstdint>
#include <cstdlib>

namespace {

using namespace quorvantis;

constexpr int kComparedQuestions = 5;  // describing all 500 would take most of the time

void FollowDescription(const nlohmann::json& json, const test::TemporaryFolder& folder) {
  static PosixFiles files;
  test::RecordingWorld world(folder.Path(), files);
  FrameSetExam exam(world.services);
  cli::FillExam(exam, json, folder.Path());
  cli::FillResponses(exam, json);
  exam.questionCount = kComparedQuestions;
  const auto described = cli::ExamToJson(exam, {});
  FrameSetExam again(world.services);
  cli::FillExam(again, nlohmann::json::parse(described.dump()), folder.Path());
  again.questionCount = kComparedQuestions;
  if (cli::ExamToJson(again, {}) != described) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const test::TemporaryFolder folder;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  try {
    for (std::string_view rest = bytes; !rest.empty();) {
      const std::string_view line = rest.substr(0, rest.find('\n'));
      rest.remove_prefix(std::min(rest.size(), line.size() + 1));
      for (const auto& argument : cli::ParseScriptLine(line).arguments) argument.Index();
    }
  } catch (const cli::CommandError&) {
    // A line that cannot be split; the whole may still be JSON.
  }
  try {
    FollowDescription(cli::ParseJsonFile(test::WriteBytes(folder / "exam.json", bytes)), folder);
  } catch (const cli::CommandError&) {
    return 0;
  }
  return 0;
}
