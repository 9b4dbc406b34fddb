// SPDX-License-Identifier: MIT
#include "examfile/AttachmentName.h"

#include "text/ControlCharacters.h"
#include "text/NumberText.h"
#include "text/PathText.h"
#include "text/Utf.h"

#include <system_error>

namespace quorvantis {
namespace {

constexpr int kPlainName = -1;

}  // namespace

std::u16string FileNameOf(std::u16string_view displayName) {
  const std::size_t separator = displayName.find_last_of(u"/\\");
  if (separator != std::u16string_view::npos) displayName.remove_prefix(separator + 1);
  std::u16string name = ReplaceLoneSurrogates(displayName);
  std::erase_if(name, IsControl);
  return name;
}

bool FreeNames::IsTaken(const std::filesystem::path& path) const {
  std::error_code error;
  return handedOut_.contains(path) || std::filesystem::exists(std::filesystem::symlink_status(path, error));
}

std::filesystem::path FreeNames::PathFor(const std::u16string& fileName) {
  int& candidate = firstCandidate_.try_emplace(fileName, kPlainName).first->second;
  while (true) {
    const std::u16string counter = candidate == kPlainName ? std::u16string() : FormatInteger(candidate);
    const std::filesystem::path path = folder_ / TextToPath(FitFileName(counter + fileName));
    ++candidate;
    if (!IsTaken(path)) return *handedOut_.insert(path).first;
  }
}

}  // namespace quorvantis
