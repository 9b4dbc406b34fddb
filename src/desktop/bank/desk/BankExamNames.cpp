// SPDX-License-Identifier: MIT
#include "desktop/bank/desk/BankExamNames.h"

#include "desktop/bank/desk/BankExamCaption.h"
#include "desktop/controls/QtText.h"
#include "platform/texts/AskedTexts.h"
#include "text/MessageText.h"

#include <iterator>
#include <set>

namespace quorvantis {
namespace {

using ExamFiles = std::set<std::filesystem::path>;

/// The last parts of a path.
std::filesystem::path EndOfPath(const std::filesystem::path& path, std::ptrdiff_t parts) {
  const std::ptrdiff_t all = std::distance(path.begin(), path.end());
  std::filesystem::path end;
  for (auto part = std::next(path.begin(), all > parts ? all - parts : 0); part != path.end(); ++part)
    end /= *part;
  return end;
}

/// How many parts at the end of each path tell all of them apart.
std::ptrdiff_t PartsToTell(const ExamFiles& files) {
  for (std::ptrdiff_t parts = 1;; ++parts) {
    std::set<std::filesystem::path> ends;
    for (const std::filesystem::path& file : files) ends.insert(EndOfPath(file, parts));
    if (ends.size() == files.size()) return parts;
  }
}

}  // namespace

BankExamNames::BankExamNames(const std::vector<const BankExam*>& exams, const StringTable& strings,
                             qsizetype longest)
    : longest_(longest) {
  std::map<QString, ExamFiles> alike;
  for (const BankExam* exam : exams) alike[ShortName(*exam)].insert(exam->path);
  for (const auto& [name, files] : alike) {
    if (files.size() == 1) continue;
    const std::ptrdiff_t parts = PartsToTell(files);
    for (const std::filesystem::path& file : files) {
      const QString end = QChar(0x2068) + PathToQString(EndOfPath(file, parts)) + QChar(0x2069);
      apart_[file] = ToQString(
          FillMessage(strings.Text(text_id::kBankExamApart), {FromQString(name), FromQString(end)}));
    }
  }
}

QString BankExamNames::Of(const BankExam& exam) const {
  const auto apart = apart_.find(exam.path);
  return apart == apart_.end() ? ShortName(exam) : apart->second;
}

QString BankExamNames::ShortName(const BankExam& exam) const {
  const QString name = BankExamName(exam);
  if (longest_ == kWhole || name.size() <= longest_) return name;
  return name.left(longest_ - 1) + QChar(u'\u2026');
}

}  // namespace quorvantis
