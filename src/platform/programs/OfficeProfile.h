// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace quorvantis {

/// Creates a LibreOffice profile in `folder` that keeps a document from running macros and from fetching
/// anything: during conversion, linked pictures would otherwise be loaded from servers and from the user's
/// own files.
void WriteOfficeProfile(const std::filesystem::path& folder);

/// The LibreOffice arguments to convert `input` to a file of `format` next to it, using the profile in the
/// folder `profile`. `filter` reads the input; `format` is an extension, optionally with a colon and an
/// export filter.
std::vector<std::string> OfficeArguments(const std::filesystem::path& profile, const std::string& filter,
                                         const std::string& format, const std::filesystem::path& input);

}  // namespace quorvantis
