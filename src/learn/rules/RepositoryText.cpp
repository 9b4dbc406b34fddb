// SPDX-License-Identifier: MIT
#include "learn/rules/RepositoryText.h"

#include "import/marking/RuleKeys.h"
#include "import/prepare/PreparationSteps.h"
#include "ini/ProfileFile.h"
#include "learn/rules/RuleComments.h"
#include "learn/rules/SafeRules.h"
#include "text/AsciiCase.h"
#include "text/NumberText.h"

#include <algorithm>
#include <limits>
#include <map>
#include <set>
#include <utility>

namespace quorvantis {
namespace {

constexpr std::u16string_view kListSection = u"Repository";
constexpr std::u16string_view kSizeKey = u"Size";
constexpr std::u16string_view kNameKey = u"Name";

struct WrittenRule {
  std::u16string_view key;
  std::u16string value;
};

/// What a section says below its name, in the order in which an import uses it.
std::vector<WrittenRule> RulesOf(const ImportSettings& rules) {
  std::vector<WrittenRule> written;
  const auto add = [&written](std::u16string_view key, std::u16string value) {
    if (!value.empty()) written.push_back({key, std::move(value)});
  };
  if (rules.listLabels) add(rule_key::kListLabels, u"1");
  add(rule_key::kPrepare, PrepareListText(rules.prepare));
  if (rules.m_nTable != 0) {
    add(rule_key::kTable, u"1");
    add(rule_key::kQuestionKey, rules.m_strTableQuesKey);
    add(rule_key::kAnswerKey, rules.m_strTableAnsKey);
  }
  for (const PatternRule& rule : kPatternRules) {
    if (rule.key != rule_key::kPattern) add(rule.key, SafePattern(rules.*rule.pattern));
  }
  add(rule_key::kPattern, SafePattern(rules.m_strPattern));
  add(rule_key::kPreTable, rules.m_strPreTable);
  return written;
}

bool BeginsLike(std::u16string_view one, std::u16string_view other) {
  const std::size_t size = std::min(one.size(), other.size());
  return EqualsIgnoringAsciiCase(one.substr(0, size), other.substr(0, size));
}

/// "#" and a number would name a section on the command line.
bool IsSafeName(std::u16string_view name) {
  return IsSafeValue(name) && name.size() <= kLongestValue && name.find(u'\t') == name.npos &&
         !name.starts_with(u'#') && !name.ends_with(u';');
}

AddedRepository Refuse(RepositoryRefusal refusal, std::u16string_view other = {}) {
  return {refusal, std::u16string(other), {}};
}

/// One file to which a repository is added.
class RepositoryAddition {
 public:
  RepositoryAddition(std::string_view bytes, const Repository& repository, const CodePage& codePage)
      : isEmpty_(bytes.empty()),
        file_(std::string(bytes), &codePage),
        repository_(repository),
        size_(std::max(ReadProfileInteger(kListSection, kSizeKey, 0, file_), 0)) {
    for (const std::u16string& name : file_.Sections()) {
      const int number = ParseInteger(name);
      if (number >= 0 && FormatInteger(number) == name) sections_.insert(number);
    }
    number_ = NextNumber();
  }

  AddedRepository Add() {
    if (const AddedRepository refused = WhyNot(); refused.refusal != RepositoryRefusal::None) return refused;
    const std::u16string section = RepositorySection(repository_, number_);
    if (!RaiseSize() || !file_.Append(isEmpty_ ? section : u"\n" + section))
      return Refuse(RepositoryRefusal::CannotEncode);
    if (const auto lost = LostKey()) return Refuse(RepositoryRefusal::CannotEncode, *lost);
    return {RepositoryRefusal::None, {}, file_.Bytes()};
  }

 private:
  /// After the last one that is listed. Numbers of sections that are not listed are not taken again.
  int NextNumber() const {
    int next = 0;
    for (const int number : sections_) {
      if (number < size_) next = std::max(next, number + 1);
    }
    while (sections_.contains(next)) ++next;
    return next;
  }

  AddedRepository WhyNot() const {
    const std::u16string& name = repository_.name;
    if (name.empty()) return Refuse(RepositoryRefusal::NameEmpty);
    if (!IsSafeName(name)) return Refuse(RepositoryRefusal::NameUnsafe);
    for (const auto& [section, other] : ReadProfileStringOfAll(kNameKey, file_)) {
      const int number = ParseInteger(section);
      const bool isListed = FormatInteger(number) == section && number <= number_;
      if (!isListed || other.empty() || !BeginsLike(name, other)) continue;
      const bool isSame = name.size() == other.size();
      return Refuse(isSame ? RepositoryRefusal::NameTaken : RepositoryRefusal::NamePrefix, other);
    }
    return WhyNotRules();
  }

  AddedRepository WhyNotRules() const {
    for (const WrittenRule& rule : RulesOf(repository_.rules)) {
      if (rule.value.size() > kLongestValue) return Refuse(RepositoryRefusal::RuleTooLong, rule.key);
      if (!IsSafeValue(rule.value)) return Refuse(RepositoryRefusal::RuleUnsafe, rule.key);
    }
    return {};
  }

  /// Only digits change, so that comments behind them stay.
  bool RaiseSize() {
    if (size_ > number_) return true;
    const bool isSet = file_.SetDigits(kListSection, kSizeKey, number_ + 1);
    if (isSet && ReadProfileInteger(kListSection, kSizeKey, 0, file_) > number_) return true;
    const std::u16string size = FormatInteger(number_ + 1);
    const std::vector<std::u16string> sections = file_.Sections();
    const bool hasList = std::ranges::any_of(
        sections, [](const std::u16string& name) { return EqualsIgnoringAsciiCase(name, kListSection); });
    if (hasList) return file_.SetValue(kListSection, kSizeKey, size);
    return file_.Append((isEmpty_ ? u"[Repository]\nSize=" : u"\n[Repository]\nSize=") + size +
                        (isEmpty_ ? u"\n\n" : u"\n"));
  }

  /// The key of a rule that would not be read back as it was written.
  std::optional<std::u16string_view> LostKey() const {
    const std::u16string section = FormatInteger(number_);
    const auto isLost = [&](std::u16string_view key, const std::u16string& value) {
      return ReadProfileString(section, key, {}, file_) != value;
    };
    if (isLost(kNameKey, repository_.name)) return kNameKey;
    for (const WrittenRule& rule : RulesOf(repository_.rules)) {
      if (isLost(rule.key, rule.value)) return rule.key;
    }
    return std::nullopt;
  }

  bool isEmpty_;
  ProfileFile file_;
  const Repository& repository_;
  int size_;                ///< as the file says
  std::set<int> sections_;  ///< that there are
  int number_ = 0;          ///< of the new one
};

}  // namespace

std::u16string RepositorySection(const Repository& repository, int number) {
  std::u16string text = u"[" + FormatInteger(number) + u"]\n";
  text.append(kNameKey).append(u"=").append(repository.name).append(u"\n");
  for (const WrittenRule& rule : RulesOf(repository.rules)) {
    const std::u16string comment = RuleComment(rule.key, rule.value);
    if (!comment.empty()) text.append(u"; ").append(comment).append(u"\n");
    text.append(rule.key).append(u"=").append(rule.value).append(u"\n");
  }
  return text;
}

AddedRepository AddRepository(std::string_view file, const Repository& repository, const CodePage& codePage) {
  return RepositoryAddition(file, repository, codePage).Add();
}

}  // namespace quorvantis
