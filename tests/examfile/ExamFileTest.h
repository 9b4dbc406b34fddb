// SPDX-License-Identifier: MIT
#pragma once

#include "ExamBytes.h"
#include "model/document/FrameSetExam.h"
#include "platform/posix/PosixFiles.h"
#include "support/RecordingWorld.h"
#include "support/TemporaryFolder.h"
#include "text/PathText.h"

#include <gtest/gtest.h>

#include <set>

namespace quorvantis::test {

/// A document in its own application folder, next to something that must not change.
class ExamFileTest : public testing::Test {
 protected:
  ExamFileTest() {
    exam.SetHostMode(1);
    std::filesystem::create_directory(application);
    WriteBytes(folder / "beside" / "victim", "untouched");
  }

  void Read(std::string_view bytes) {
    world.dialogs.warnings.clear();
    exam.Reset();
    exam.ReadExamFile(WriteBytes(folder / "read.exm", bytes));
  }

  /// The content of the test's folder without the unpacked files.
  std::set<std::string> Surroundings() const {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.Path())) {
      if (entry.path().parent_path() != work) names.insert(entry.path().lexically_relative(folder.Path()));
    }
    return names;
  }
  const std::set<std::string> kUntouched = {
      "app",           "app/TEMP", "app/TEMP/ExamPreview", "app/TEMP/ExamPreview/~tt", "beside",
      "beside/victim", "read.exm"};

  using Messages = std::vector<std::u16string>;

  TemporaryFolder folder;
  const std::filesystem::path application = folder / "app";
  const std::filesystem::path work = application / "TEMP" / "ExamPreview" / "~tt";
  PosixFiles files;
  RecordingWorld world{application, files};
  FrameSetExam exam{world.services};
};

}  // namespace quorvantis::test
