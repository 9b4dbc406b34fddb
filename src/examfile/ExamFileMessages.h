// SPDX-License-Identifier: MIT
// All messages to the user about an exam file.
#pragma once

#include "examfile/ExamFileReader.h"
#include "platform/StringTable.h"

#include <filesystem>
#include <string>
#include <system_error>

namespace quorvantis {

/// "Open file … error!", for a file that could not be read or saved.
std::u16string OpenFileError(const StringTable& strings, const std::filesystem::path& file);
/// The same, with the reason on a line below.
std::u16string OpenFileError(const StringTable& strings, const std::filesystem::path& file,
                             std::error_code why);

/// What was passed over, as one sentence: "This file holds more than an exam can have, and …". Empty if
/// nothing was.
std::u16string PassedOverText(const StringTable& strings, const PassedOver& passedOver);

/// Shows what is missing from an exam that was read; nothing if it is complete.
void ShowReadLosses(const ExamServices& services, const ExamReadOutcome& outcome);

}  // namespace quorvantis
