// SPDX-License-Identifier: MIT
#include "host/ImportRulesCopy.h"

#include "shell/ExamImport.h"

#include <system_error>

namespace quorvantis {

void ProvideImportRules(const std::filesystem::path& programFolder,
                        const std::filesystem::path& applicationFolder) {
  const std::filesystem::path copy = applicationFolder / kImportRulesFile;
  std::error_code ignored;
  if (std::filesystem::exists(std::filesystem::symlink_status(copy, ignored))) return;
  std::filesystem::copy_file(programFolder / kImportRulesFile, copy, ignored);
}

}  // namespace quorvantis
