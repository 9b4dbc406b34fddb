// SPDX-License-Identifier: MIT
#include "versions/make/TargetFolder.h"

#include "platform/FolderEntries.h"
#include "platform/WholeFile.h"
#include "platform/texts/VersionTexts.h"
#include "text/MessageText.h"
#include "text/PathText.h"
#include "versions/folder/VersionFiles.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace quorvantis {
namespace {

namespace fs = std::filesystem;

/// An entry of the folder that the plan does not name; empty if there is none.
fs::path ForeignEntry(const std::vector<fs::path>& entries, const PlanRecord& record) {
  for (const fs::path& entry : entries) {
    const std::u16string name = PathToText(entry.filename());
    const auto isIt = [&name](const MadeFile& made) { return made.name == name; };
    const bool isKnown = name == kPlanFile || std::ranges::any_of(record.files, isIt);
    if (!isKnown || IsFolder(entry)) return entry;
  }
  return {};
}

}  // namespace

fs::path UsualVersionFolder(const fs::path& exam) {
  return exam.parent_path() / TextToPath(FitFileName(PathToText(exam.stem()) + u" versions"));
}

std::optional<PlanRecord> PlanIn(const fs::path& folder, const PlanForm& form) {
  const auto bytes = ReadWholeFile(folder / kPlanFile, kLargestTable);
  return bytes ? form.Read(*bytes) : std::nullopt;
}

std::u16string ProblemWithFolder(const fs::path& folder, const fs::path& exam, bool replaces,
                                 const PlanForm& form, const StringTable& strings) {
  const auto problem = [&strings, &folder](int text, std::u16string_view more = {}) {
    return FillMessage(strings.Text(text), {PathToText(folder), more});
  };
  std::error_code error;
  const fs::file_status status = fs::status(folder, error);
  if (status.type() == fs::file_type::not_found)
    return IsLink(folder) ? problem(text_id::kVersionsFolderIsLink) : std::u16string();
  if (!fs::is_directory(status)) return problem(text_id::kVersionsFolderTaken);
  const std::vector<fs::path> entries = EntriesOf(folder);
  if (entries.empty()) return {};
  const std::optional<PlanRecord> record = PlanIn(folder, form);
  if (!record || !fs::equivalent(folder / TextToPath(record->source), exam, error))
    return problem(text_id::kVersionsFolderTaken);
  const fs::path foreign = ForeignEntry(entries, *record);
  if (!foreign.empty()) return problem(text_id::kVersionsFolderForeign, PathToText(foreign.filename()));
  return replaces ? std::u16string() : problem(text_id::kVersionsFolderReplaceable);
}

}  // namespace quorvantis
