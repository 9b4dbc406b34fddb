// SPDX-License-Identifier: MIT
#pragma once

#include "model/LongAnswerFlags.h"
#include "shell/language/LanguageChoice.h"
#include "shell/language/LanguageInUse.h"
#include "shell/language/LanguageList.h"
#include "shell/language/LanguageSetting.h"

#include <filesystem>
#include <optional>
#include <string_view>

namespace quorvantis {

class CodePage;
class CQuorvantisApp;
class Files;

/// The windows that start-up shows.
class ApplicationWindows {
 public:
  virtual ~ApplicationWindows() = default;

  /// Another language library is now in use: adjusts everything but texts to it, such as the direction of
  /// windows.
  virtual void LanguageApplied(const LanguageInUse& language) = 0;

  /// The program cannot start; waits until the user has seen why.
  virtual void ShowFailure(std::u16string_view message) = 0;

  /// Shows the language dialog until it is closed. False when it was cancelled.
  virtual bool ChooseLanguage(LanguageChoice& choice, const LanguageInUse& language) = 0;

  /// Shows the main window until it is closed, and returns the program's exit code.
  virtual int RunMainWindow(CQuorvantisApp& application) = 0;
};

/// What start-up needs of the outside world. All must outlive the application.
struct ApplicationWorld {
  LanguageLibraries& libraries;
  Files& files;
  const CodePage& codePage;  ///< of a settings file in 8-bit text
  ApplicationWindows& windows;
};

/// The application: from the start of the program to the main window, and its end. There is one for the whole
/// run.
class CQuorvantisApp {
 public:
  /// `moduleFolder` is the application folder and `languageFolder` that of the language libraries, both full
  /// paths. `languageAskedFor` replaces the setting and the language dialog.
  CQuorvantisApp(std::filesystem::path moduleFolder, std::filesystem::path languageFolder,
                 std::optional<int> languageAskedFor, const ApplicationWorld& world);

  /// Runs the program until its main window is closed. False: there is nothing to do after it.
  bool InitInstance();

  /// Releases the language library and returns the exit code: 0, that of the main window, or 2 when there is
  /// no language to start with.
  int ExitInstance();

  const std::filesystem::path& ModuleFolder() const { return moduleFolder_; }

  /// The identifier of the wanted language. That of the library in use differs if there is no library for it.
  int LanguageId() const { return languageId_; }

  /// Stays the same object whichever library is in use.
  const LanguageInUse& Language() const { return resourceLibrary_; }

  LongAnswerFlags& LongAnswers() { return longAnswerFlags_; }

 private:
  bool ScanLanguageLibraries();
  bool ApplyLanguage();
  bool ChooseLanguage();
  void MakeStudentFolder() const;
  bool Fail(std::u16string_view message);

  LongAnswerFlags longAnswerFlags_;
  LanguageInUse resourceLibrary_;
  const std::filesystem::path moduleFolder_;
  const std::filesystem::path languageFolder_;
  LanguageList languages_;
  const std::optional<int> languageAskedFor_;
  int languageId_ = 0;
  ApplicationWorld world_;
  LanguageSetting setting_;
  int exitCode_ = 0;
};

}  // namespace quorvantis
