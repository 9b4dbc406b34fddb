// SPDX-License-Identifier: MIT
#include "exchange/table/TableColumns.h"

#include "exchange/form/TextSource.h"
#include "model/AnswerLetters.h"
#include "model/ExamLimits.h"
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

constexpr std::u16string_view kBetweenOptions = u" ,;/+&\n";

/// Letters or numbers, with something between them or not.
bool IsListOfOptions(std::u16string_view cell) {
  return std::ranges::all_of(cell, [](char16_t unit) {
    const char16_t upper = AsciiUpper(unit);
    return (upper >= u'A' && upper <= u'Z') || IsDigit(unit) ||
           kBetweenOptions.find(unit) != kBetweenOptions.npos;
  });
}

/// The first option that has this text; none if none has.
std::vector<bool> OptionsOfText(std::u16string_view cell, const std::vector<std::u16string>& options) {
  std::vector<bool> rights(options.size());
  const auto same = std::ranges::find(options, cell);
  if (!cell.empty() && same != options.end()) rights[static_cast<std::size_t>(same - options.begin())] = true;
  return rights;
}

/// The options with these letters or numbers; none if one of them names no option.
std::vector<bool> OptionsByPlace(std::u16string_view cell, std::size_t count) {
  std::vector<bool> rights(count);
  for (const char16_t unit : cell) {
    if (kBetweenOptions.find(unit) != kBetweenOptions.npos) continue;
    const auto option = OptionOfName(AsciiLower(std::u16string_view(&unit, 1)));
    if (!option || *option >= count) return std::vector<bool>(count);
    rights[*option] = true;
  }
  return rights;
}

std::size_t FirstOf(const std::vector<bool>& rights) {
  return static_cast<std::size_t>(std::ranges::find(rights, true) - rights.begin());
}

/// Capital letters in order, with nothing between them.
bool IsKeyAsWritten(std::u16string_view cell) {
  for (std::size_t i = 0; i < cell.size(); ++i) {
    if (cell[i] < OptionLetter(0) || cell[i] >= OptionLetter(kOptionCount)) return false;
    if (i > 0 && cell[i] <= cell[i - 1]) return false;
  }
  return !cell.empty();
}

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
      if (!(columns.*known->column)) columns.*known->column = i;
    } else if (const auto option = OptionOfName(name)) {
      options.emplace(*option, i);
    }
  }
  for (const auto& [option, column] : options) columns.options.push_back(column);
  columns.areOurs = std::ranges::equal(names, WrittenColumnNames(), {}, Trimmed);
  return columns;
}

TableColumns ColumnsByShape(const std::vector<TableRow>& rows) {
  constexpr std::size_t kFewestColumns = 4;
  TableColumns columns;
  const std::size_t count = rows.empty() ? 0 : rows[0].size();
  const auto isLike = [count](const TableRow& row) {
    const std::u16string_view last = row.size() == count ? Trimmed(row.back()) : std::u16string_view();
    return count == 2 ? !last.empty() : !last.empty() && last.size() <= kOptionCount && IsListOfOptions(last);
  };
  if ((count != 2 && count < kFewestColumns) || !std::ranges::all_of(rows, isLike)) return columns;
  columns.text = 0;
  (count == 2 ? columns.answers : columns.right) = count - 1;
  for (std::size_t i = 1; i + 1 < count; ++i) columns.options.push_back(i);
  return columns;
}

std::optional<QuestionKind> KindInCell(std::u16string_view cell) {
  const std::u16string word = AsciiLower(Trimmed(cell));
  const auto* const row = std::ranges::find(kKindWords, word, &KindWord::word);
  return row != std::end(kKindWords) ? std::optional(row->kind) : std::nullopt;
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
  std::erase(answers, std::u16string());
  return answers;
}

NamedOptions NamedRights(std::u16string_view cell, const std::vector<std::u16string>& options, bool isOurs) {
  std::vector<bool> byText = OptionsOfText(cell, options);
  std::vector<bool> byPlace = OptionsByPlace(cell, options.size());
  const auto placed = std::ranges::count(byPlace, true);
  if (placed == 0) return {std::move(byText)};
  const bool isOwnText = placed == 1 && options[FirstOf(byPlace)] == cell;
  const bool hasText = std::ranges::count(byText, true) > 0;
  if (!hasText || isOwnText || (isOurs && IsKeyAsWritten(cell))) return {std::move(byPlace)};
  return {cell.size() == 1 ? std::move(byPlace) : std::move(byText), true};
}

}  // namespace quorvantis
