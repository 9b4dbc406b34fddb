// SPDX-License-Identifier: MIT
// Feeds any bytes to the reader of recovery copies, both as a whole file and as the snapshot inside one,
// which the file's checksum would otherwise protect. The result must be an exam that an editor can show.
#include "editor/UnseenView.h"
#include "platform/posix/PosixFiles.h"
#include "recovery/ExamSnapshot.h"
#include "recovery/RecoveryFile.h"
#include "support/RecordingWorld.h"
#include "support/TemporaryFolder.h"

#include <cstdint>
#include <cstdlib>

using namespace quorvantis;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const test::TemporaryFolder folder;
  static PosixFiles files;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  ParseRecoveryFile(bytes);
  test::RecordingWorld world(folder.Path(), files);
  FrameSetExam exam(world.services);
  const auto place = ReadSnapshot(bytes, exam);
  if (!place) return 0;
  UnseenView view;
  ExamEditor editor(exam, view, nullptr);
  editor.questions.ShowQuestion(place->currentQuestion);
  FrameSetExam again(world.services);
  if (!ReadSnapshot(TakeSnapshot(editor).content, again)) std::abort();
  return 0;
}
