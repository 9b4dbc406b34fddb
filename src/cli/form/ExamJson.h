// SPDX-License-Identifier: MIT
// An exam as JSON: the format that `show --json` prints and `build` reads.
#pragma once

#include "examfile/ExamFileReader.h"
#include "model/document/FrameSetExam.h"

#include <nlohmann/json_fwd.hpp>

namespace quorvantis::cli {

/// One file of an attachment list.
struct ListedFile {
  std::u16string name;
  std::filesystem::path path;
};

/// The entries of an attachment list that have a path.
std::vector<ListedFile> ListedFiles(const AttachmentList& names, const AttachmentList& paths);

/// The content of the exam file, with size and hash of each unpacked file.
nlohmann::ordered_json ExamToJson(const FrameSetExam& exam, const ExamReadOutcome& outcome);

}  // namespace quorvantis::cli
