// SPDX-License-Identifier: MIT
#pragma once

#include "ini/ProfileFile.h"

#include <filesystem>
#include <string>

namespace quorvantis {

class CodePage;
class Files;

/// What the windows for learning systems remember from run to run.
struct ExchangeChoices {
  std::u16string format = {};            ///< of the last file written, by its name
  std::filesystem::path writtenTo = {};  ///< folders; empty until there is one. They may be gone
  std::filesystem::path takenFrom = {};
};

/// Section "exchange" of "system.ini" in the application folder.
class ExchangeSetting {
 public:
  /// All must outlive this. `codePage` is that of a file in 8-bit text.
  ExchangeSetting(const std::filesystem::path& applicationFolder, Files& files, const CodePage& codePage)
      : file_(applicationFolder / kSettingsFile), files_(files), codePage_(codePage) {}

  ExchangeChoices Read() const;

  /// Failing to write it is ignored.
  void Write(const ExchangeChoices& choices) const;

 private:
  std::filesystem::path file_;
  Files& files_;
  const CodePage& codePage_;
};

}  // namespace quorvantis
