// SPDX-License-Identifier: MIT
#include "versions/folder/VersionKeys.h"

#include "model/QuestionKinds.h"
#include "render/sheets/KeyTable.h"
#include "text/NumberText.h"
#include "text/Utf.h"

#include <algorithm>
#include <cstddef>

namespace quorvantis {
namespace {

std::u16string KindCell(QuestionKind kind) {
  const auto* const row = FindKind(kind);
  return row != nullptr ? Utf8ToUtf16(row->word) : FormatInteger(static_cast<int>(kind));
}

}  // namespace

std::string VersionKeyCsv(const ExamPaper& exam, const PlannedVersion& version) {
  std::string csv(kCsvStart);
  csv += CsvLine({u"place", u"source", u"kind", u"key", u"score"});
  const std::vector<KeyRow> rows = KeyTable(exam);
  const std::size_t count = std::min(rows.size(), version.questions.size());
  for (std::size_t i = 0; i < count; ++i) {
    csv +=
        CsvLine({FormatInteger(rows[i].number), FormatInteger(version.questions[i]), KindCell(rows[i].kind),
                 rows[i].key, rows[i].score ? ShortScore(*rows[i].score) : std::u16string()});
  }
  return csv;
}

std::string CombinedKeysCsv(const std::vector<ExamPaper>& exams, const VersionPlan& plan) {
  std::vector<std::vector<std::u16string>> lines{{u"source"}};
  for (std::size_t i = 0; i < exams.size(); ++i) {
    const PlannedVersion& version = plan.versions[i];
    const std::vector<KeyRow> rows = KeyTable(exams[i]);
    lines.front().insert(lines.front().end(), {version.name + u" place", version.name + u" key"});
    lines.resize(version.questions.size() + 1);
    for (std::size_t place = 0; place < std::min(rows.size(), version.questions.size()); ++place) {
      auto& line = lines[static_cast<std::size_t>(version.questions[place])];
      if (line.empty()) line.push_back(FormatInteger(version.questions[place]));
      line.insert(line.end(), {FormatInteger(rows[place].number), rows[place].key});
    }
  }
  std::string csv(kCsvStart);
  for (const auto& line : lines) csv += CsvLine(line);
  return csv;
}

}  // namespace quorvantis
