// SPDX-License-Identifier: MIT
#include "host/SavedRules.h"

#include "learn/rules/RefusalText.h"
#include "platform/WholeFile.h"
#include "platform/posix/FileLock.h"
#include "platform/texts/ExportTexts.h"
#include "platform/texts/LearnTexts.h"
#include "text/MessageText.h"
#include "text/PathText.h"
#include "text/Utf.h"

#include <optional>
#include <system_error>

namespace quorvantis {
namespace {

namespace fs = std::filesystem;
using Outcome = SavedRules::Outcome;

/// The most that readers of such files take.
constexpr std::size_t kMostBytes = std::size_t{16} * 1024 * 1024;
constexpr std::chrono::seconds kPatience(10);

SavedRules NotRead(const fs::path& file) {
  std::error_code error;
  const bool isFile = fs::is_regular_file(file, error);
  const auto reason =
      error ? error : std::make_error_code(isFile ? std::errc::file_too_large : std::errc::invalid_argument);
  return {Outcome::NotRead, RepositoryRefusal::None, {}, reason.message()};
}

/// The file is held by this program.
SavedRules SaveHeld(const fs::path& file, const Repository& repository, const CodePage& codePage,
                    Files& files) {
  const std::optional<std::string> bytes = ReadWholeFile(file, kMostBytes);
  if (!bytes) return NotRead(file);
  const AddedRepository added = AddRepository(*bytes, repository, codePage);
  if (added.refusal != RepositoryRefusal::None) return {Outcome::Refused, added.refusal, added.other};
  if (added.file.size() > kMostBytes) return {Outcome::NotWritten, {}, {}, "File too large"};
  const std::error_code error = SaveWholeFile(files, file, added.file);
  if (error) return {Outcome::NotWritten, RepositoryRefusal::None, {}, error.message()};
  return {};
}

}  // namespace

SavedRules SaveRules(const fs::path& file, const Repository& repository, const CodePage& codePage,
                     Files& files) {
  std::error_code error;
  const auto lock = FileLock::Take(file, kPatience, error);
  if (!lock) {
    const bool isBusy = error == std::errc::timed_out;
    return {isBusy ? Outcome::Busy : Outcome::NotRead, RepositoryRefusal::None, {}, error.message()};
  }
  SavedRules saved = SaveHeld(file, repository, codePage, files);
  if (!saved.AreSaved() && lock->HasCreated()) fs::remove(file, error);
  return saved;
}

std::u16string WhyNotSaved(const SavedRules& saved, const fs::path& file, const Repository& repository,
                           const StringTable& strings) {
  const auto about = [&](int text) {
    return FillMessage(strings.Text(text), {PathToText(file), Utf8ToUtf16(saved.failure)});
  };
  switch (saved.outcome) {
    case Outcome::Saved:
      return {};
    case Outcome::Refused:
      return RefusalText({saved.refusal, saved.other, {}}, repository, strings);
    case Outcome::NotRead:
      return about(text_id::kRulesFileNotRead);
    case Outcome::NotWritten:
      return about(text_id::kCannotWrite);
    case Outcome::Busy:
      return about(text_id::kRulesFileBusy);
  }
  return {};
}

}  // namespace quorvantis
