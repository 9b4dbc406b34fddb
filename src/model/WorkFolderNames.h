// SPDX-License-Identifier: MIT
// The names of the folders that hold pages and attached files, most as other programs and old exams know
// them.
#pragma once

#include "text/NumberText.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace quorvantis {

inline constexpr std::string_view kPreviewFolders = "TEMP";  ///< holds the folder of the editor's pages
inline constexpr std::string_view kCopyFolders = "~TEMP";    ///< holds the copies of attached files
inline constexpr std::string_view kUnpackedFolder = "~tt";   ///< beside pages: what a reader unpacked

/// Hidden entries of the folder of copies, beside the folders that are named after the origin of a file: the
/// files that a step of the history can bring back, those of another exam that is open to take questions
/// from, those of a file of a learning system, those of a question of the bank that is looked at, and pasted
/// questions, each of the latter four with a number.
inline constexpr std::string_view kHistoryFolder = ".history";
inline constexpr std::string_view kOtherExamFolder = ".other-exam-";
inline constexpr std::string_view kForeignExamFolder = ".foreign-exam-";
inline constexpr std::string_view kLookedAtFolder = ".looked-at-";
inline constexpr std::string_view kPastedFile = ".pasted-";

/// Parent of all student folders, in the application folder or the current one.
inline constexpr std::u16string_view kStudentFolders = u"~BrelmStudent";

/// "TEMP/ExamPreview" in the application folder: the editor's pages.
inline std::filesystem::path EditorPageFolder(const std::filesystem::path& applicationFolder) {
  return applicationFolder / kPreviewFolders / "ExamPreview";
}

/// "~BrelmStudent/ID<n>", relative to the current directory: the pages of the student with that number, read
/// as a decimal ("007" is 7).
inline std::filesystem::path StudentPageFolder(std::u16string_view number) {
  return std::filesystem::path(kStudentFolders) / ("ID" + std::to_string(ParseInteger(number)));
}

}  // namespace quorvantis
