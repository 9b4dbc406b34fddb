// SPDX-License-Identifier: MIT
#pragma once

#include "exchange/Formats.h"
#include "shell/language/BuiltInStrings.h"
#include "support/RecordingWorld.h"
#include "support/TemporaryFolder.h"
#include "text/Utf.h"

#include <optional>
#include <string>
#include <string_view>

namespace quorvantis::test {

/// "choice t | +a | -b", "fill t | a, b | c", "essay t | model"; with " @name" for each file.
inline std::string Briefly(const ExchangedQuestion& question) {
  static const char* const kNames[] = {"choice", "fill", "essay", "oral"};
  std::u16string text = u" " + question.text;
  for (const ExchangedOption& option : question.options)
    text += (option.isRight ? u" | +" : u" | -") + option.text;
  for (const BlankAnswers& blank : question.blanks) {
    text += u" | ";
    for (std::size_t i = 0; i < blank.size(); ++i) text += (i == 0 ? u"" : u", ") + blank[i];
  }
  if (!question.modelAnswer.empty()) text += u" | " + question.modelAnswer;
  for (const ExchangedFile& file : question.files) text += u" @" + file.name;
  std::string brief = kNames[static_cast<std::size_t>(question.kind)] + Utf16ToUtf8(text);
  for (std::size_t at = brief.find("\r\n"); at != brief.npos; at = brief.find("\r\n"))
    brief.replace(at, 2, "\\n");
  return brief;
}

/// What a file is read as.
struct ForeignFile {
  std::string format;  ///< that was recognised; empty if none was
  std::optional<ExchangedExam> exam{};
  std::string questions{};  ///< brief, one a line
  std::string notes{};      ///< one a line
};

/// Reads files of strangers.
class ForeignReader {
 public:
  ForeignReader() { std::filesystem::create_directory(folder / "kept"); }

  ForeignFile Read(std::string_view bytes) {
    WriteBytes(folder / "file", bytes);
    const ExchangeSource source(folder / "file");
    const FormatRow* const format = RecogniseFormat(source);
    return format != nullptr ? ReadAs(*format, source) : ForeignFile{};
  }

  ForeignFile ReadAs(const FormatRow& format, const ExchangeSource& source) {
    ExchangeNotes notes;
    ExchangeFiles files(folder / "kept", notes);
    InterruptedProgress progress;
    ReadingTools tools{BuiltInStrings(), files, notes, progress};
    ForeignFile read{std::string(format.name), format.reader()->Read(source, tools)};
    if (read.exam) {
      for (const ExchangedQuestion& question : read.exam->questions)
        read.questions += Briefly(question) + "\n";
    }
    for (const ExchangeNote& note : notes.All())
      read.notes += Utf16ToUtf8(NoteLine(note, BuiltInStrings())) + "\n";
    return read;
  }

  TemporaryFolder folder;
};

}  // namespace quorvantis::test
