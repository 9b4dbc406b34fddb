// SPDX-License-Identifier: MIT
// The work of the window that draws from the bank, for another thread.
#pragma once

#include "bank/search/DrawnList.h"
#include "platform/StringTable.h"

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace quorvantis {

class FileDigest;
class Files;
class FrameSetExam;
struct BankPlace;
struct ExamServices;

/// A draw, and what came before it.
struct DrawRun {
  DrawnList list;
  std::vector<std::filesystem::path> unreadableFolders;
  bool hasFolders = true;  ///< whether the bank has any
};

/// Brings the index up to date, which `services` tell the progress of and may cancel, and draws. No question
/// comes that `openExam`, which may be null, has.
DrawRun UpdateAndDraw(const BankPlace& place, ExamServices& services, const FileDigest& digest,
                      DrawOrder order, const FrameSetExam* openExam);

/// Brings the index up to date and draws another question in the place of `row` (DrawAnother).
AnotherDrawn UpdateAndExchange(const BankPlace& place, ExamServices& services, const FileDigest& digest,
                               const DrawnList& list, std::size_t row);

/// What can be chosen for a draw.
struct DrawChoices {
  std::vector<std::filesystem::path>
      folders;                       ///< of the bank, and all in which its exams lie, in their order
  std::vector<std::u16string> tags;  ///< that questions have there

  bool operator==(const DrawChoices&) const = default;
};

/// Looks at the index as it is and at the files of tags. Empty when the index cannot be read.
DrawChoices ChoicesOf(const BankPlace& place, Files& files, const std::function<bool()>& isCancelled);

/// What was found, for the user: a line for each wish, and for each file or folder that could not be read.
std::vector<std::u16string> ReportOf(const DrawnList& list,
                                     const std::vector<std::filesystem::path>& unreadableFolders,
                                     const StringTable& strings);

}  // namespace quorvantis
