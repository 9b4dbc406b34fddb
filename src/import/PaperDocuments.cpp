// SPDX-License-Identifier: MIT
#include "import/PaperDocuments.h"

#include "ini/ProfileEncoding.h"
#include "platform/WholeFile.h"
#include "text/MarkdownEscapes.h"
#include "text/PathText.h"

namespace quorvantis {
namespace {

constexpr std::u16string_view kMarkdownExtension = u"md";
constexpr std::size_t kMaxBytes = std::size_t{64} * 1024 * 1024;

/// Why the whole file could not be read.
WordResult WhyUnread(const std::filesystem::path& document) {
  std::error_code error;
  const auto size = std::filesystem::file_size(document, error);
  return !error && size > kMaxBytes ? WordResult::TooLarge : WordResult::CannotAccess;
}

}  // namespace

WordReadOutcome TextDocuments::Open(const std::filesystem::path& file, const WordReadOptions& /*options*/) {
  std::error_code error;
  if (!std::filesystem::exists(file, error)) return {WordResult::NotFound};
  const auto bytes = ReadWholeFile(file, kMaxBytes);
  if (!bytes) return {WhyUnread(file)};
  const ProfileEncoding encoding = ProfileEncoding::Of(*bytes, &codePage_);
  WordContent document;
  document.isPlainText = true;
  document.runningText.characters = encoding.Decode(std::string_view(*bytes).substr(encoding.MarkSize()));
  std::u16string& characters = document.runningText.characters;
  if (characters.find(u'\0') != std::u16string::npos) return {WordResult::UnknownFormat};
  if (ExtensionOrPath(PathToText(file)) == kMarkdownExtension) characters = UnprotectMarkdown(characters);
  return {WordResult::Done, std::move(document)};
}

WordReadOutcome PaperDocuments::Open(const std::filesystem::path& file, const WordReadOptions& options) {
  const std::u16string extension = ExtensionOrPath(PathToText(file));
  const bool isText = extension == u"txt" || extension == kMarkdownExtension;
  return isText ? text_.Open(file, options) : word_.Open(file, options);
}

}  // namespace quorvantis
