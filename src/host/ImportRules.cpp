// SPDX-License-Identifier: MIT
#include "host/ImportRules.h"

#include "import/ExamImport.h"
#include "platform/posix/ApplicationFolder.h"

#include <system_error>

namespace quorvantis {

std::filesystem::path FindImportRules(const std::filesystem::path& applicationFolder) {
  std::filesystem::path own = applicationFolder / kImportRulesFile;
  std::error_code ignored;
  return std::filesystem::is_regular_file(own, ignored) ? own : ExecutableFolder() / kImportRulesFile;
}

void ProvideImportRules(const std::filesystem::path& programFolder,
                        const std::filesystem::path& applicationFolder) {
  const std::filesystem::path copy = applicationFolder / kImportRulesFile;
  std::error_code ignored;
  if (std::filesystem::exists(std::filesystem::symlink_status(copy, ignored))) return;
  std::filesystem::copy_file(programFolder / kImportRulesFile, copy, ignored);
}

}  // namespace quorvantis
