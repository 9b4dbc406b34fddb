// SPDX-License-Identifier: MIT
#pragma once

#include "import/marking/ImportSettings.h"
#include "platform/CodePage.h"

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace quorvantis {

/// The name of the file with the repositories.
inline constexpr const char* kImportRulesFile = "ImportExam.ini";

/// The rules behind the import dialog: which repositories "ImportExam.ini" has, and whether the chosen
/// document and repository can be used. After a successful Accept its settings are those of the chosen
/// repository.
class ExamImport : public ImportSettings {
 public:
  static constexpr int kNoSection = -1;

  /// `codePage`, which must outlive this, is for a file in 8-bit text.
  ExamImport(std::filesystem::path iniFile, const CodePage& codePage)
      : m_strIniPath(std::move(iniFile)), codePage_(codePage) {}

  /// Lists the repositories in the order of the file, and selects the first one.
  void Open();

  /// Their names, in the order of the list. There are as many as the file says, with empty names for unnamed
  /// ones. Above kMostListed, only named ones are listed.
  static constexpr int kMostListed = 10'000;
  std::vector<std::u16string> Repositories() const;

  /// Takes the rules of the chosen repository. 0, or the number of the text that says what is wrong; the
  /// dialog then stays open.
  int Accept();

  /// The same with the rules of a section, whatever its name.
  int AcceptSection(int section);

  /// The section of the chosen repository: that of the first one whose name begins with the chosen one.
  /// Deliberate: the search begins at the second entry and tries the first one last, so a name that is the
  /// beginning of a later one selects the later one. kNoSection when there is none.
  int ChosenSection() const;

  std::filesystem::path m_strIniPath;
  std::filesystem::path m_strDocPath;
  std::u16string m_strRepository;

 private:
  std::u16string NameOf(int entry) const;

  const CodePage& codePage_;
  int count_ = 0;                        ///< of the repositories; may be far more than the sections
  std::map<int, std::u16string> names_;  ///< of the sections that have one
};

}  // namespace quorvantis
