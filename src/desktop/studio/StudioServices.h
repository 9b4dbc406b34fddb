// SPDX-License-Identifier: MIT
#pragma once

#include "import/PaperFile.h"
#include "learn/ForeseenImport.h"
#include "learn/rules/RepositoryText.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace quorvantis {

/// An import as the window for papers wants it.
struct StudioImport {
  std::filesystem::path paper;
  ImportSettings rules;
  ImportWish wish;
};

/// What the window for papers asks the program to do.
struct StudioServices {
  /// Lets the user choose a paper; nothing if they cancel.
  std::function<std::optional<std::filesystem::path>()> choosePaper;
  /// Reads a paper. Called on another thread.
  std::function<PaperFile(const std::filesystem::path& paper, const CancelHook& isCancelled)> readPaper;
  /// Keeps a text for readPaper and import, under the name that is returned.
  std::function<std::filesystem::path(std::u16string text)> holdText;
  /// The exam with everything that is typed.
  std::function<ExamPaper()> exam;
  /// The question that the main window shows.
  std::function<int()> currentQuestion;
  /// True if questions were imported; otherwise the exam is as it was.
  std::function<bool(const StudioImport& wanted)> import;
  /// Adds the rules to the file in use. Nothing and the file if that is done, or why it is not.
  std::function<std::optional<std::u16string>(const Repository& rules, std::filesystem::path& file)>
      saveRules;
};

}  // namespace quorvantis
