// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace quorvantis {

/// Makes a LibreOffice profile in `folder` under which a document can neither run macros nor fetch anything:
/// linked pictures would otherwise be loaded from servers and from the user's own files while it is
/// converted.
void WriteOfficeProfile(const std::filesystem::path& folder);

/// What LibreOffice is told to make a file of `format` of `input` beside it, under the profile in the folder
/// `profile`. `filter` is the one to read it with; `format` an extension, or that with a colon and a filter.
std::vector<std::string> OfficeArguments(const std::filesystem::path& profile, const std::string& filter,
                                         const std::string& format, const std::filesystem::path& input);

}  // namespace quorvantis
