// SPDX-License-Identifier: MIT
#include "import/ExamImport.h"

#include "import/marking/RuleKeys.h"
#include "import/prepare/PreparationSteps.h"
#include "ini/ProfileValues.h"
#include "platform/texts/ProgramTexts.h"
#include "text/AsciiCase.h"
#include "text/NumberText.h"

#include <algorithm>

namespace quorvantis {
namespace {

bool BeginsWith(std::u16string_view name, std::u16string_view chosen) {
  return EqualsIgnoringAsciiCase(name.substr(0, chosen.size()), chosen);
}

}  // namespace

void ExamImport::Open() {
  const ProfileFile file(m_strIniPath, &codePage_);
  count_ = std::max(ReadProfileInteger(u"Repository", u"Size", 0, file), 0);
  names_.clear();
  for (const auto& [section, name] : ReadProfileStringOfAll(u"Name", file)) {
    const int number = ParseInteger(section);
    const bool isEntry = number >= 0 && number < count_ && FormatInteger(number) == section;
    if (isEntry && !name.empty()) names_.try_emplace(number, name);
  }
  m_strRepository = NameOf(0);
}

std::u16string ExamImport::NameOf(int entry) const {
  const auto found = names_.find(entry);
  return found == names_.end() ? std::u16string() : found->second;
}

std::vector<std::u16string> ExamImport::Repositories() const {
  std::vector<std::u16string> list(count_ > kMostListed ? 0 : static_cast<std::size_t>(count_));
  for (const auto& [entry, name] : names_) {
    if (count_ > kMostListed)
      list.push_back(name);
    else
      list[static_cast<std::size_t>(entry)] = name;
  }
  return list;
}

int ExamImport::ChosenSection() const {
  if (m_strRepository.empty()) return count_ > 1 ? 1 : count_ - 1;  // every name begins with it
  for (auto entry = names_.upper_bound(0); entry != names_.end(); ++entry) {
    if (BeginsWith(entry->second, m_strRepository)) return entry->first;
  }
  return BeginsWith(NameOf(0), m_strRepository) ? 0 : kNoSection;
}

int ExamImport::Accept() {
  return AcceptSection(ChosenSection());
}

int ExamImport::AcceptSection(int section) {
  std::error_code error;
  if (m_strDocPath.empty() || !std::filesystem::exists(m_strDocPath, error))
    return text_id::kWrongDocumentPath;
  const ProfileFile file(m_strIniPath, &codePage_);
  const std::u16string name = FormatInteger(section);
  for (const PatternRule& rule : kPatternRules)
    this->*rule.pattern = ReadProfileString(name, rule.key, {}, file);
  m_strPreTable = ReadProfileString(name, rule_key::kPreTable, {}, file);
  if (m_strPattern.empty() || m_strPreAnswer.empty()) return text_id::kWrongImportRules;
  listLabels = ReadProfileInteger(name, rule_key::kListLabels, 0, file) == 1;
  prepare = ReadPrepareList(ReadProfileString(name, rule_key::kPrepare, {}, file));
  if (ReadProfileInteger(name, rule_key::kTable, 0, file) == 1) {
    m_nTable = 1;
    m_strTableAnsKey = ReadProfileString(name, rule_key::kAnswerKey, {}, file);
    m_strTableQuesKey = ReadProfileString(name, rule_key::kQuestionKey, {}, file);
  }
  return 0;
}

}  // namespace quorvantis
