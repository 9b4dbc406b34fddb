// SPDX-License-Identifier: MIT
#include "shell/start/CQuorvantisApp.h"

#include "model/WorkFolderNames.h"
#include "text/MessageText.h"
#include "text/NumberText.h"
#include "text/PathText.h"

namespace quorvantis {
namespace {

constexpr int kNoLanguage = 2;

// Shown when there is no language to take texts from. Wording and spelling are deliberate.
constexpr std::u16string_view kNoLanguageFolder = u"Can't find any language file !GetLastError()=0x%s\n";
constexpr std::u16string_view kNoLanguageFile = u"Cann't find any language file!\n";
constexpr std::u16string_view kCannotLoad = u"Load resouce file named %s failed!\n";

}  // namespace

CQuorvantisApp::CQuorvantisApp(std::filesystem::path moduleFolder, std::filesystem::path languageFolder,
                               std::optional<int> languageAskedFor, const ApplicationWorld& world)
    : moduleFolder_(std::move(moduleFolder)),
      languageFolder_(std::move(languageFolder)),
      languageAskedFor_(languageAskedFor),
      world_(world),
      setting_(moduleFolder_, world.files, world.codePage) {}

bool CQuorvantisApp::InitInstance() {
  longAnswerFlags_ = LongAnswerFlags();
  languageId_ = languageAskedFor_ ? *languageAskedFor_ : setting_.Read();
  resourceLibrary_.Use(nullptr);
  if (!ScanLanguageLibraries() || !ApplyLanguage() || !ChooseLanguage() || !ApplyLanguage()) return false;
  MakeStudentFolder();
  exitCode_ = world_.windows.RunMainWindow(*this);
  return false;
}

int CQuorvantisApp::ExitInstance() {
  resourceLibrary_.Use(nullptr);
  return exitCode_;
}

bool CQuorvantisApp::ScanLanguageLibraries() {
  std::error_code error;
  languages_ = quorvantis::ScanLanguageLibraries(languageFolder_, world_.libraries, error);
  return !error ||
         Fail(FillMessage(kNoLanguageFolder, {FormatHexadecimal(static_cast<std::uint32_t>(error.value()))}));
}

/// A missing language is not a failure: the first one found takes its place.
bool CQuorvantisApp::ApplyLanguage() {
  const std::size_t index = languages_.IndexOf(languageId_).value_or(0);
  if (languages_.Count() == 0) return Fail(kNoLanguageFile);
  const std::filesystem::path& file = languages_.languageFiles[index];
  resourceLibrary_.Use(nullptr);
  resourceLibrary_.Use(world_.libraries.Load(file));
  if (!resourceLibrary_.HasLibrary()) return Fail(FillMessage(kCannotLoad, {PathToText(file)}));
  world_.windows.LanguageApplied(resourceLibrary_);
  return true;
}

bool CQuorvantisApp::ChooseLanguage() {
  if (languageAskedFor_) return true;
  LanguageChoice choice(languages_, setting_, languageId_);
  return world_.windows.ChooseLanguage(choice, resourceLibrary_);
}

/// For programs that take an exam in this folder. The editor itself stores nothing there.
void CQuorvantisApp::MakeStudentFolder() const {
  std::error_code ignored;
  std::filesystem::create_directory(moduleFolder_ / kStudentFolders, ignored);
}

bool CQuorvantisApp::Fail(std::u16string_view message) {
  world_.windows.ShowFailure(message);
  exitCode_ = kNoLanguage;
  return false;
}

}  // namespace quorvantis
