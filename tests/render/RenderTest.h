// SPDX-License-Identifier: MIT
#pragma once

#include "model/document/FrameSetExam.h"
#include "platform/posix/PosixFiles.h"
#include "support/RecordingWorld.h"
#include "support/TemporaryFolder.h"
#include "text/PathText.h"
#include "text/Utf.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace quorvantis::test {

namespace fs = std::filesystem;

/// An exam in the editor's location, with the folders that a preview creates. Texts are their numbers: "[145
/// %s]".
class RenderTest : public testing::Test {
 protected:
  RenderTest() {
    fs::create_directories(pages);
    exam.SetHostMode(1);
  }

  ExamQuestion& Add(QuestionKind kind, std::u16string text = u"") {
    ExamQuestion& question = exam.Question(++exam.questionCount);
    question.kind = kind;
    question.text = std::move(text);
    return question;
  }
  void Attach(const std::vector<std::u16string>& paths) {
    std::copy(paths.begin(), paths.end(), exam.examAttachmentPaths.begin());
  }

  /// A page as composed, in UTF-8.
  std::string Page(const fs::path& file) { return Utf16ToUtf8(world.pages.pages.at(file)); }

  std::string App() const { return world.services.applicationFolder.string(); }

  TemporaryFolder folder;
  PosixFiles files;
  RecordingWorld world{folder / "app", files};
  const fs::path pages = folder / "app" / "TEMP" / "ExamPreview";
  FrameSetExam exam{world.services};
};

inline int CountOf(const std::string& part, const std::string& text) {
  int count = 0;
  for (std::size_t at = 0; (at = text.find(part, at)) != std::string::npos; at += part.size()) ++count;
  return count;
}

inline std::string Replaced(std::string text, const std::string& part, const std::string& by) {
  for (std::size_t at = 0; (at = text.find(part, at)) != std::string::npos; at += by.size()) {
    text.replace(at, part.size(), by);
  }
  return text;
}

/// Compares a page with golden/<name> byte by byte. QV_UPDATE_GOLDEN=1 rewrites the file instead.
inline void ExpectGolden(const char* name, const std::string& page) {
  const fs::path golden = fs::path(QUORVANTIS_PROJECT) / "tests" / "render" / "golden" / name;
  if (std::getenv("QV_UPDATE_GOLDEN") != nullptr) WriteBytes(golden, page);  // NOLINT(concurrency-mt-unsafe)
  EXPECT_EQ(page, ReadBytes(golden)) << golden;
}

}  // namespace quorvantis::test
