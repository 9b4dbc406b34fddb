// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace quorvantis {

class CodePage;
class DebugOutput;
class Files;
class IdSource;
class LongAnswerFlags;
class PageStore;
class Progress;
class Registry;
class StringTable;
class UserDialogs;

/// Everything an exam document needs from the outside world. Owned by the application; outlives every
/// document.
struct ExamServices {
  std::filesystem::path applicationFolder;  ///< contains the work folders
  const StringTable& strings;
  UserDialogs& dialogs;
  const CodePage& codePage;  ///< for 8-bit exam files
  DebugOutput& debug;
  Files& files;
  Progress& progress;
  LongAnswerFlags& longAnswerFlags;
  IdSource& ids;
  Registry& registry;
  PageStore& pages;
};

}  // namespace quorvantis
