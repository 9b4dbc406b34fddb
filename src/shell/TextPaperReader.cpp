// SPDX-License-Identifier: MIT
#include "shell/TextPaperReader.h"

#include "editor/ExamFileCommands.h"
#include "platform/WholeFile.h"
#include "shell/ProfileEncoding.h"
#include "text/MessageText.h"
#include "text/PathText.h"

namespace quorvantis {
namespace {

constexpr std::size_t kMaxBytes = std::size_t{64} * 1024 * 1024;

PaperOutcome Refused(std::u16string_view why, const std::filesystem::path& document) {
  return {std::nullopt, FillMessage(why, {PathToText(document)})};
}

}  // namespace

PaperOutcome TextPaperReader::Read(const std::filesystem::path& document, int firstPicture) {
  std::error_code error;
  if (LowerExtension(document) != u"txt") {
    return Refused(u"%s: this version reads text files (.txt) only; save the document as plain text first.",
                   document);
  }
  if (!std::filesystem::exists(document, error)) return Refused(u"%s: there is no such file.", document);
  const auto bytes = ReadWholeFile(document, kMaxBytes);
  if (!bytes) return Refused(u"%s: cannot be read, or is too large for a paper.", document);
  const ProfileEncoding encoding = ProfileEncoding::Of(*bytes, &codePage_);
  std::u16string text = encoding.Decode(std::string_view(*bytes).substr(encoding.MarkSize()));
  if (text.find(u'\0') != text.npos) {
    return Refused(u"%s: is no text file; save the document as plain text first.", document);
  }
  return {PaperContent{std::move(text), {}, firstPicture, false}, {}};
}

}  // namespace quorvantis
