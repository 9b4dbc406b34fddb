// SPDX-License-Identifier: MIT
#pragma once

#include "learn/rules/RepositoryText.h"
#include "platform/CodePage.h"
#include "platform/Files.h"
#include "platform/StringTable.h"

#include <filesystem>
#include <string>

namespace quorvantis {

/// What became of rules that were to be saved.
struct SavedRules {
  enum class Outcome {
    Saved,
    Refused,     ///< `refusal` and `other` say why
    NotRead,     ///< `failure` says why; the file is no regular one, too large or not accessible
    NotWritten,  ///< `failure` says why
    Busy,        ///< another program is adding rules and does not end
  };
  Outcome outcome = Outcome::Saved;
  RepositoryRefusal refusal = RepositoryRefusal::None;
  std::u16string other{};
  std::string failure{};  ///< as the system says it

  bool AreSaved() const { return outcome == Outcome::Saved; }
};

/// Adds a repository to a file of them, which is created if it does not exist. The file is replaced in one
/// step, and several programs at once lose nothing. Unless that succeeds, it stays as it is.
SavedRules SaveRules(const std::filesystem::path& file, const Repository& repository,
                     const CodePage& codePage, Files& files);

/// Why they were not saved, in one line for the user.
std::u16string WhyNotSaved(const SavedRules& saved, const std::filesystem::path& file,
                           const Repository& repository, const StringTable& strings);

}  // namespace quorvantis
