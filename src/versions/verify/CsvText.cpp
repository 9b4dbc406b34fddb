// SPDX-License-Identifier: MIT
#include "versions/verify/CsvText.h"

#include "render/sheets/KeyTable.h"
#include "text/Utf.h"

#include <utility>

namespace quorvantis {
namespace {

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

std::optional<std::vector<CsvRow>> ReadCsv(std::string_view bytes) {
  if (!bytes.starts_with(kCsvStart)) return std::nullopt;
  return CsvReader(Utf8ToUtf16(bytes.substr(kCsvStart.size()))).Read();
}

}  // namespace quorvantis
