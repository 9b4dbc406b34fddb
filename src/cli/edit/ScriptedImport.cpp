// SPDX-License-Identifier: MIT
#include "cli/edit/ScriptedImport.h"

#include "cli/console/CommandError.h"
#include "cli/console/WhyUnreadable.h"
#include "platform/texts/ProgramTexts.h"
#include "text/NumberText.h"
#include "text/Utf.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace quorvantis::cli {
namespace {

/// "#" and a number; nothing for other texts.
std::optional<int> SectionNamed(std::u16string_view repository) {
  if (!repository.starts_with(u'#')) return std::nullopt;
  repository.remove_prefix(1);
  const int section = ParseInteger(repository);
  return FormatInteger(section) == repository ? std::optional(section) : std::nullopt;
}

/// Enough names to see what there is, in one line.
std::string NamesOf(const ExamImport& import) {
  constexpr std::size_t kMostNames = 10;
  constexpr std::size_t kMostCharacters = 40;
  std::string names;
  std::size_t count = 0;
  for (const std::u16string& name : import.Repositories()) {
    if (name.empty() || ++count > kMostNames) continue;
    const bool isCut = name.size() > kMostCharacters;
    names += (names.empty() ? "" : ", ") +
             ("\"" + Utf16ToUtf8(name.substr(0, kMostCharacters)) + (isCut ? "...\"" : "\""));
  }
  if (count > kMostNames) names += " and " + std::to_string(count - kMostNames) + " more";
  return names.empty() ? "it names none" : "it has " + names;
}

}  // namespace

ChoiceResult ChoiceNamed(std::string_view word) {
  constexpr std::string_view kWords[] = {"", "give-up", "ignore", "force"};
  const auto* found = std::ranges::find(kWords, word);
  if (found == std::end(kWords)) throw CommandError("the answer must be give-up, ignore or force");
  return static_cast<ChoiceResult>(found - std::begin(kWords));
}

void ScriptedImport::Prepare(ImportAnswers answers) {
  answers_ = std::move(answers);
  report_ = {};
  refusal_.clear();
}

bool ScriptedImport::AskDocument(ExamImport& import) {
  if (answers_.rules) {
    static_cast<ImportSettings&>(import) = *answers_.rules;
    import.m_strDocPath = answers_.document;
    return true;
  }
  const std::string rules = import.m_strIniPath.string();
  std::optional<int> section = SectionNamed(answers_.repository);
  import.m_strDocPath = answers_.document;
  import.m_strRepository = answers_.repository;
  if (!section) section = import.ChosenSection();
  std::error_code error;
  const int wrong = import.AcceptSection(*section);
  if (wrong == text_id::kWrongDocumentPath) {
    refusal_ = answers_.document.string() + ": " + WhyUnreadable(answers_.document);
  } else if (!std::filesystem::is_regular_file(import.m_strIniPath, error)) {
    refusal_ = rules + ": " + WhyUnreadable(import.m_strIniPath);
  } else if (*section == ExamImport::kNoSection) {
    refusal_ = rules + ": no repository begins with \"" + Utf16ToUtf8(answers_.repository) + "\"; " +
               NamesOf(import);
  } else if (wrong != 0) {
    refusal_ =
        rules + ": section " + std::to_string(*section) + " needs the keys \"Pattern\" and \"PreAnswer\"";
  }
  return refusal_.empty();
}

void ScriptedImport::ShowNotice(std::u16string_view, std::u16string_view text) {
  console_.Complain(Utf16ToUtf8(text));
}

void ScriptedImport::ShowFailure(const ImportReport& report, std::u16string_view text) {
  report_ = report;
  refusal_ = Utf16ToUtf8(text);
}

void ScriptedImport::ThrowIfRefused() const {
  if (!refusal_.empty()) throw CommandError(refusal_);
}

}  // namespace quorvantis::cli
