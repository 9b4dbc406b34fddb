// SPDX-License-Identifier: MIT
// Reads any bytes as questions of every format. What is read must fit an exam, keep the form of its texts,
// and be written and read again.
#include "Require.h"
#include "exchange/Formats.h"
#include "exchange/exam/ExamToExchange.h"
#include "exchange/exam/ExchangeToExam.h"
#include "exchange/markup/Markup.h"
#include "model/document/FrameSetExam.h"
#include "platform/posix/PosixFiles.h"
#include "shell/language/BuiltInStrings.h"
#include "support/RecordingWorld.h"
#include "support/TemporaryFolder.h"

#include <cstdint>
#include <string>

namespace {

using namespace quorvantis;

void RequireSound(const ExchangedExam& exam) {
  for (const ExchangedQuestion& question : exam.questions) {
    const std::u16string text = ReadExamText(question.text).text;
    Require(ReadExamText(text).text == text);
    Require(ReadHtml(ExamTextToHtml(text, HtmlDialect::Html)).text == text);
  }
}

void ReadAs(const FormatRow& format, const std::filesystem::path& folder) {
  PosixFiles posixFiles;
  test::RecordingWorld world(folder, posixFiles);
  ExchangeNotes notes;
  ExchangeFiles files(folder / "kept", notes);
  const ExchangeSource source(folder / "file");
  ReadingTools tools{world.strings, files, notes, world.progress};
  if (format.recognises(source)) RecogniseFormat(source);
  const auto read = format.reader()->Read(source, tools);
  if (!read) return;
  RequireSound(*read);
  FrameSetExam exam(world.services);
  exam.SetHostMode(1);
  Require(StoreExchanged(*read, exam, 1, notes) <= kMaxQuestions + 1);
  const ExchangedExam held = HeldExam(format.held, ExamToExchange(exam, notes), notes);
  Require(!format.writer()->Write(held, world.strings, world.progress).empty() || held.questions.empty());
}

/// The first letter names the format.
const FormatRow* FormatOf(char letter) {
  for (const FormatRow& format : Formats()) {
    if (format.reader != nullptr && format.name[0] == letter) return &format;
  }
  return nullptr;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const FormatRow* const format = FormatOf(static_cast<char>(data[0]));
  if (format == nullptr) return 0;
  const test::TemporaryFolder folder;
  std::filesystem::create_directory(folder / "kept");
  test::WriteBytes(folder / "file", {reinterpret_cast<const char*>(data) + 1, size - 1});
  ReadAs(*format, folder.Path());
  return 0;
}
