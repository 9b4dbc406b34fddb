// SPDX-License-Identifier: MIT
#include "versions/CsvText.h"

#include "text/NumberText.h"
#include "text/Utf.h"

#include <algorithm>
#include <utility>

namespace quorvantis {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

bool IsNumber(std::u16string_view text) {
  if (!text.empty() && (text.front() == u'-' || text.front() == u'+')) text.remove_prefix(1);
  const auto isPart = [](char16_t unit) { return IsDigit(unit) || unit == u'.' || unit == u','; };
  return !text.empty() && std::ranges::all_of(text, isPart);
}

bool LooksLikeFormula(std::u16string_view text) {
  constexpr std::u16string_view kBegins = u"=+-@\t\r";
  return !text.empty() && kBegins.find(text.front()) != kBegins.npos && !IsNumber(text);
}

std::u16string Quoted(std::u16string_view text) {
  if (text.find_first_of(u",\"\r\n") == text.npos) return std::u16string(text);
  std::u16string quoted = u"\"";
  for (const char16_t unit : text) quoted.append(unit == u'"' ? 2 : 1, unit);
  return quoted + u"\"";
}

/// Reads a table unit by unit.
class CsvReader {
 public:
  explicit CsvReader(std::u16string_view text) : text_(text) {}

  std::optional<std::vector<CsvRow>> Read() {
    while (at_ < text_.size()) {
      if (!ReadCell()) return std::nullopt;
      const bool goesOn = at_ < text_.size() && text_[at_] == u',';
      if (!goesOn) {
        EndRow();
      } else if (++at_ == text_.size()) {
        row_.emplace_back();
        EndRow();
      }
    }
    return std::move(rows_);
  }

 private:
  void EndRow() {
    if (at_ < text_.size() && text_[at_] == u'\r') ++at_;
    if (at_ < text_.size() && text_[at_] == u'\n') ++at_;
    rows_.push_back(std::exchange(row_, {}));
  }

  bool ReadCell() {
    std::u16string& cell = row_.emplace_back();
    bool isQuoted = text_[at_] == u'"';
    if (isQuoted) ++at_;
    for (; at_ < text_.size(); ++at_) {
      const char16_t unit = text_[at_];
      const bool isMark = isQuoted && unit == u'"';
      if (isMark && at_ + 1 < text_.size() && text_[at_ + 1] == u'"') {
        ++at_;
      } else if (isMark) {
        isQuoted = false;
        continue;
      } else if (!isQuoted && (unit == u',' || unit == u'\r' || unit == u'\n')) {
        return true;
      }
      cell += unit;
    }
    return !isQuoted;
  }

  std::u16string_view text_;
  std::size_t at_ = 0;
  CsvRow row_;
  std::vector<CsvRow> rows_;
};

}  // namespace

std::u16string CsvCell(std::u16string_view text) {
  std::u16string cell = ReplaceLoneSurrogates(text);
  return LooksLikeFormula(cell) ? u"'" + cell : cell;
}

std::string CsvBytes(const std::vector<CsvRow>& rows) {
  std::u16string text;
  for (const CsvRow& row : rows) {
    for (std::size_t i = 0; i < row.size(); ++i)
      text.append(i == 0 ? u"" : u",").append(Quoted(CsvCell(row[i])));
    text += u"\r\n";
  }
  return std::string(kUtf8Mark) + Utf16ToUtf8(text);
}

std::optional<std::vector<CsvRow>> ReadCsv(std::string_view bytes) {
  if (!bytes.starts_with(kUtf8Mark)) return std::nullopt;
  return CsvReader(Utf8ToUtf16(bytes.substr(kUtf8Mark.size()))).Read();
}

}  // namespace quorvantis
