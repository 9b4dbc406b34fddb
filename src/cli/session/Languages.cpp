// SPDX-License-Identifier: MIT
#include "cli/session/Languages.h"

#include "cli/console/CommandError.h"
#include "platform/posix/ApplicationFolder.h"
#include "platform/posix/DynamicLanguageLibraries.h"
#include "shell/language/LanguageId.h"

namespace quorvantis::cli {
namespace fs = std::filesystem;

LanguageList FindLanguages(const fs::path& applicationFolder) {
  const fs::path programFolder = ExecutableFolder();
  const fs::path own = applicationFolder.empty() ? programFolder : fs::absolute(applicationFolder);
  const fs::path folder = LanguageFolder(own.lexically_normal(), programFolder);
  DynamicLanguageLibraries libraries;
  std::error_code error;
  LanguageList list = ScanLanguageLibraries(folder, libraries, error);
  if (error) throw CommandError(folder.string() + ": no folder of languages (" + error.message() + ")");
  if (list.Count() == 0) {
    throw CommandError(folder.string() + ": has no language libraries; put one there or build \"languages\"");
  }
  return list;
}

std::unique_ptr<LanguageLibrary> LoadLanguage(const fs::path& applicationFolder, int languageId) {
  const LanguageList list = FindLanguages(applicationFolder);
  const auto index = list.IndexOf(languageId);
  std::unique_ptr<LanguageLibrary> library =
      index ? DynamicLanguageLibraries().Load(list.languageFiles[*index]) : nullptr;
  if (library) return library;
  throw CommandError("there is no language " + FormatLanguageId(languageId) +
                     "; \"quorvantis-cli languages\" lists those that there are");
}

}  // namespace quorvantis::cli
