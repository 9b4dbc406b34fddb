// SPDX-License-Identifier: MIT
#include "examfile/FileFailure.h"

#include "platform/texts/FileTexts.h"
#include "text/Utf.h"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <iterator>

namespace quorvantis {
namespace {

struct KnownFailure {
  std::errc failure;
  int text;
};

constexpr KnownFailure kKnown[] = {
    {std::errc::permission_denied, text_id::kNotPermitted},
    {std::errc::operation_not_permitted, text_id::kNotPermitted},
    {std::errc::no_such_file_or_directory, text_id::kNotThere},
    {std::errc::not_a_directory, text_id::kNotThere},
    {std::errc::no_space_on_device, text_id::kDiskFull},
    {std::errc::read_only_file_system, text_id::kReadOnlyDisk},
    {std::errc::is_a_directory, text_id::kIsFolder},
    {std::errc::io_error, text_id::kReadOrWriteFails},
    {std::errc::filename_too_long, text_id::kNameTooLong},
};

}  // namespace

std::error_code ReadFailureOf(const std::filesystem::path& file) {
  std::error_code error;
  const std::filesystem::file_status status = std::filesystem::status(file, error);
  if (status.type() == std::filesystem::file_type::not_found && !error)
    return std::make_error_code(std::errc::no_such_file_or_directory);
  if (error) return error;
  if (std::filesystem::is_directory(status)) return std::make_error_code(std::errc::is_a_directory);
  if (!std::filesystem::is_regular_file(status)) return std::make_error_code(std::errc::not_supported);
  errno = 0;
  if (std::ifstream(file).is_open()) return {};
  return errno != 0 ? std::error_code(errno, std::generic_category())
                    : std::make_error_code(std::errc::permission_denied);
}

std::u16string FileFailureText(const StringTable& strings, std::error_code failure) {
  const auto* known =
      std::ranges::find_if(kKnown, [&](const KnownFailure& entry) { return failure == entry.failure; });
  return known != std::end(kKnown) ? strings.Text(known->text) : Utf8ToUtf16(failure.message());
}

}  // namespace quorvantis
