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

/// What an exam document needs of the outside world. Owned by the application; outlives every document.
struct ExamServices {
  std::filesystem::path applicationFolder;  ///< holds the work folders
  const StringTable& strings;
  UserDialogs& dialogs;
  const CodePage& codePage;  ///< of 8-bit exam files
  DebugOutput& debug;
  Files& files;
  Progress& progress;
  LongAnswerFlags& longAnswerFlags;
  IdSource& ids;
  Registry& registry;
  PageStore& pages;
};

}  // namespace quorvantis
