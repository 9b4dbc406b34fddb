// SPDX-License-Identifier: MIT
#include "shell/TextPaperReader.h"

#include "platform/WholeFile.h"
#include "shell/ProfileEncoding.h"

namespace quorvantis {
namespace {

constexpr std::size_t kMaxBytes = std::size_t{64} * 1024 * 1024;

/// Why the whole file could not be read.
WordResult WhyUnread(const std::filesystem::path& document) {
  std::error_code error;
  const auto size = std::filesystem::file_size(document, error);
  return !error && size > kMaxBytes ? WordResult::TooLarge : WordResult::CannotAccess;
}

}  // namespace

PaperOutcome TextPaperReader::Read(const std::filesystem::path& document, const PaperReading& reading) {
  std::error_code error;
  if (!std::filesystem::exists(document, error)) return {WordResult::NotFound, std::nullopt};
  const auto bytes = ReadWholeFile(document, kMaxBytes);
  if (!bytes) return {WhyUnread(document), std::nullopt};
  const ProfileEncoding encoding = ProfileEncoding::Of(*bytes, &codePage_);
  PaperContent content;
  content.text = encoding.Decode(std::string_view(*bytes).substr(encoding.MarkSize()));
  content.nextPicture = reading.firstPicture;
  if (content.text.find(u'\0') != content.text.npos) return {WordResult::UnknownFormat, std::nullopt};
  return {WordResult::Done, std::move(content)};
}

}  // namespace quorvantis
