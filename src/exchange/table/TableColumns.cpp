// SPDX-License-Identifier: MIT
#include "exchange/table/TableColumns.h"

#include "exchange/form/NamedPlaces.h"
#include "exchange/form/TextSource.h"
#include "text/AsciiCase.h"
#include "text/NumberText.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quorvantis {
namespace {

struct ColumnName {
  std::u16string_view name;
  std::optional<std::size_t> TableColumns::*column;
};

// What tables of other programs call them, too.
constexpr ColumnName kColumnNames[] = {
    {u"kind", &TableColumns::kind},
    {u"type", &TableColumns::kind},
    {u"question type", &TableColumns::kind},
    {u"question", &TableColumns::text},
    {u"text", &TableColumns::text},
    {u"question text", &TableColumns::text},
    {u"stem", &TableColumns::text},
    {u"right", &TableColumns::right},
    {u"correct", &TableColumns::right},
    {u"key", &TableColumns::right},
    {u"correct answer", &TableColumns::right},
    {u"answers", &TableColumns::answers},
    {u"answer", &TableColumns::answers},
    {u"model answer", &TableColumns::modelAnswer},
    {u"model", &TableColumns::modelAnswer},
    {u"score", &TableColumns::score},
    {u"points", &TableColumns::score},
    {u"marks", &TableColumns::score},
};

/// Columns that say nothing beyond the order of the questions.
constexpr std::u16string_view kRunningNumbers[] = {u"", u"#", u"no", u"no.", u"nr", u"nr.", u"number"};

struct KindWord {
  std::u16string_view word;
  QuestionKind kind;
};

constexpr KindWord kKindWords[] = {
    {u"choice", QuestionKind::Choice},      {u"multiple choice", QuestionKind::Choice},
    {u"mc", QuestionKind::Choice},          {u"mcq", QuestionKind::Choice},
    {u"fillin", QuestionKind::FillIn},      {u"fill in", QuestionKind::FillIn},
    {u"fill-in", QuestionKind::FillIn},     {u"short answer", QuestionKind::FillIn},
    {u"shortanswer", QuestionKind::FillIn}, {u"essay", QuestionKind::Essay},
    {u"oral", QuestionKind::Oral},
};

/// "A" to "Z", or "Option 3" and the like, as the number of the option from 0 on.
std::optional<std::size_t> OptionOfName(std::u16string_view name) {
  for (const std::u16string_view prefix :
       {u"option ", u"choice ", u"answer ", u"option", u"choice", u"answer"}) {
    if (!name.starts_with(prefix)) continue;
    name.remove_prefix(prefix.size());
    break;
  }
  if (name.size() != 1) return std::nullopt;
  if (name[0] >= u'1' && name[0] <= u'9') return static_cast<std::size_t>(name[0] - u'1');
  if (name[0] >= u'a' && name[0] <= u'z') return static_cast<std::size_t>(name[0] - u'a');
  return std::nullopt;
}

bool HasRunningNumbers(const std::vector<TableRow>& rows) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const std::u16string number = FormatInteger(static_cast<std::int64_t>(i + 1));
    const std::u16string_view cell = Trimmed(rows[i][0]);
    if (cell != number && cell != number + u'.') return false;
  }
  return !rows.empty();
}

constexpr std::size_t kFewestColumns = 4;  // a question, two options and the key

}  // namespace

TableRow WrittenColumnNames() {
  return {u"kind",    u"question",     u"A",    u"B", u"C", u"D", u"E", u"right",
          u"answers", u"model answer", u"score"};
}

TableColumns ColumnsOf(const TableRow& names) {
  TableColumns columns;
  std::map<std::size_t, std::size_t> options;
  for (std::size_t i = 0; i < names.size(); ++i) {
    const std::u16string name = AsciiLower(Trimmed(names[i]));
    const auto* const known = std::ranges::find(kColumnNames, name, &ColumnName::name);
    if (known != std::end(kColumnNames)) {
      if (columns.*known->column) {
        columns.others.push_back(i);
      } else {
        columns.*known->column = i;
      }
    } else if (const auto option = OptionOfName(name)) {
      options.emplace(*option, i);
    } else if (std::ranges::find(kRunningNumbers, name) == std::end(kRunningNumbers)) {
      columns.others.push_back(i);
    }
  }
  for (const auto& [option, column] : options) columns.options.push_back(column);
  columns.count = names.size();
  columns.areOurs = std::ranges::equal(names, WrittenColumnNames(), {}, Trimmed);
  return columns;
}

void MoveKeysToOneColumn(std::vector<TableRow>& rows) {
  std::size_t widest = 0;
  for (TableRow& row : rows) {
    while (row.size() > 1 && Trimmed(row.back()).empty()) row.pop_back();
    widest = std::max(widest, row.size());
  }
  if (widest < kFewestColumns) return;
  for (TableRow& row : rows) row.insert(row.end() - 1, widest - row.size(), std::u16string());
}

TableColumns ColumnsByShape(const std::vector<TableRow>& rows) {
  TableColumns columns;
  const std::size_t first = HasRunningNumbers(rows) && rows[0].size() != 2 ? 1 : 0;
  const std::size_t end = rows.empty() ? 0 : rows[0].size();
  const std::size_t count = end - first;
  const auto isLike = [end, count](const TableRow& row) {
    const std::u16string_view last = row.size() == end ? Trimmed(row.back()) : std::u16string_view();
    const NamedPlaces places = PlacesIn(last, count - 2);
    return !last.empty() && (count == 2 || (!places.hasWords && !places.options.empty()));
  };
  if ((count != 2 && count < kFewestColumns) || !std::ranges::all_of(rows, isLike)) return columns;
  columns.text = first;
  columns.count = end;
  (count == 2 ? columns.answers : columns.right) = end - 1;
  for (std::size_t i = first + 1; i + 1 < end; ++i) columns.options.push_back(i);
  return columns;
}

std::optional<QuestionKind> KindInCell(std::u16string_view cell) {
  const std::u16string word = AsciiLower(Trimmed(cell));
  const auto* const row = std::ranges::find(kKindWords, word, &KindWord::word);
  return row != std::end(kKindWords) ? std::optional(row->kind) : std::nullopt;
}

bool IsTrueFalse(std::u16string_view cell) {
  std::u16string word = AsciiLower(Trimmed(cell));
  std::erase_if(word, [](char16_t unit) { return unit == u' ' || unit == u'/' || unit == u'-'; });
  return word == u"truefalse" || word == u"tf";
}

std::u16string JoinAnswers(const std::vector<std::u16string>& answers) {
  std::u16string cell;
  for (std::size_t i = 0; i < answers.size(); ++i) {
    if (i > 0) cell.append({u' ', kAnswerSeparator, u' '});
    for (const char16_t unit : answers[i]) {
      if (unit == kAnswerSeparator || unit == u'\\') cell.push_back(u'\\');
      cell.push_back(unit);
    }
  }
  return cell;
}

std::vector<std::u16string> AnswersInCell(std::u16string_view cell) {
  std::vector<std::u16string> answers(1);
  for (std::size_t i = 0; i < cell.size(); ++i) {
    const bool isProtected =
        cell[i] == u'\\' && i + 1 < cell.size() && (cell[i + 1] == kAnswerSeparator || cell[i + 1] == u'\\');
    if (cell[i] == kAnswerSeparator) {
      answers.emplace_back();
    } else {
      if (isProtected) ++i;
      answers.back().push_back(cell[i]);
    }
  }
  for (std::u16string& answer : answers) answer = std::u16string(Trimmed(answer));
  return answers;
}

}  // namespace quorvantis
