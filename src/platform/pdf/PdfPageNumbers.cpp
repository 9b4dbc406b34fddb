// SPDX-License-Identifier: MIT
#include "platform/pdf/PdfPageNumbers.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <vector>

namespace quorvantis {
namespace {

using View = std::string_view;

constexpr double kFontSize = 9;
constexpr double kDigitWidth = 0.556;  // of Helvetica, as a part of the font size
constexpr double kOtherWidth = 0.278;  // of its blank and its slash

/// The number at the front of `text`; nothing without one.
std::optional<std::size_t> NumberAt(View text) {
  std::size_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() ? std::optional(number) : std::nullopt;
}

/// What follows `mark`, or nothing.
std::optional<View> After(View text, View mark) {
  const std::size_t at = text.find(mark);
  return at == text.npos ? std::nullopt : std::optional(text.substr(at + mark.size()));
}

std::string Decimal(double value) {
  const auto tenths = static_cast<long>(value * 10);
  return std::to_string(tenths / 10) + "." + std::to_string(tenths % 10);
}

/// An object of the file: its number, and its text from "<<" to "endobj".
struct PdfObject {
  std::size_t number;
  View text;
};

/// The objects that are pages, in their order, and what a change of the file must know of it.
class PdfFile {
 public:
  explicit PdfFile(View bytes) : bytes_(bytes) {}

  /// False if the file is not built as expected.
  bool Read() {
    constexpr View kStart = "startxref\n";
    const std::size_t last = bytes_.rfind(kStart);
    if (last == bytes_.npos) return false;
    const auto table = NumberAt(bytes_.substr(last + kStart.size()));
    if (!table || *table >= bytes_.size()) return false;
    table_ = *table;
    const auto rest = After(bytes_.substr(table_), "xref\n0 ");
    const auto trailer = After(bytes_.substr(table_), "trailer\n");
    const auto root = trailer ? After(*trailer, "/Root ") : std::nullopt;
    if (!rest || !root) return false;
    root_ = root->substr(0, root->find('R'));
    const auto count = NumberAt(*rest);
    const std::size_t lineEnd = rest->find('\n');
    if (!count || lineEnd == rest->npos) return false;
    return ReadEntries(rest->substr(lineEnd + 1), *count);
  }

  const std::vector<PdfObject>& Pages() const { return pages_; }
  std::size_t ObjectCount() const { return count_; }
  std::size_t Table() const { return table_; }
  View Root() const { return root_; }

 private:
  bool ReadEntries(View entries, std::size_t count) {
    constexpr std::size_t kEntry = 20;  // bytes
    if (entries.size() / kEntry < count) return false;
    count_ = count;
    for (std::size_t number = 1; number < count; ++number) {
      const auto offset = NumberAt(entries.substr(number * kEntry));
      if (!offset || *offset >= table_) return false;
      TakeIfPage(number, *offset);
    }
    return !pages_.empty();
  }

  void TakeIfPage(std::size_t number, std::size_t offset) {
    const std::string head = std::to_string(number) + " 0 obj\n";
    View object = bytes_.substr(offset, table_ - offset);
    if (!object.starts_with(head)) return;
    object.remove_prefix(head.size());
    if (!object.starts_with("<</Type /Page\n")) return;
    pages_.push_back({number, object.substr(0, object.find("endobj"))});
  }

  View bytes_;
  std::size_t table_ = 0;
  std::size_t count_ = 0;
  View root_;
  std::vector<PdfObject> pages_;
};

/// The changes of a file, which follow its old content.
class PdfUpdate {
 public:
  PdfUpdate(View bytes, const PdfFile& file) : result_(bytes), file_(file), next_(file.ObjectCount()) {
    if (!result_.ends_with('\n')) result_ += '\n';
  }

  std::size_t Add(const std::string& text) {
    Put(next_, text);
    return next_++;
  }

  std::size_t AddStream(const std::string& content) {
    return Add("<</Length " + std::to_string(content.size()) + ">> stream\n" + content + "\nendstream\n");
  }

  void Put(std::size_t number, const std::string& text) {
    places_.push_back({number, result_.size()});
    result_ += std::to_string(number) + " 0 obj\n" + text + "endobj\n";
  }

  std::string Finish() {
    const std::size_t table = result_.size();
    std::ranges::sort(places_, {}, &Place::number);
    result_ += "xref\n";
    for (const Place& place : places_) {
      std::string offset = std::to_string(place.offset);
      offset.insert(0, 10 - std::min<std::size_t>(offset.size(), 10), '0');
      result_ += std::to_string(place.number) + " 1\n" + offset + " 00000 n \n";
    }
    result_ += "trailer\n<</Size " + std::to_string(next_) + "\n/Root " + std::string(file_.Root()) +
               "R\n/Prev " + std::to_string(file_.Table()) + ">>\nstartxref\n" + std::to_string(table) +
               "\n%%EOF\n";
    return std::move(result_);
  }

 private:
  struct Place {
    std::size_t number;
    std::size_t offset;
  };

  std::string result_;
  const PdfFile& file_;
  std::size_t next_;
  std::vector<Place> places_;
};

/// Puts `addition` behind the first `mark`. False without one.
bool Insert(std::string& text, View mark, const std::string& addition) {
  const std::size_t at = text.find(mark);
  if (at == std::string::npos) return false;
  text.insert(at + mark.size(), addition);
  return true;
}

double WidthOf(View digits) {
  double width = 0;
  for (const char c : digits) width += c >= '0' && c <= '9' ? kDigitWidth : kOtherWidth;
  return width * kFontSize;
}

/// As an artifact: it is no part of what the page says.
std::string Stamp(const std::string& number, double left, double bottom) {
  return "Q\n/Artifact BMC\nq\nBT\n/Qv " + Decimal(kFontSize) + " Tf\n" + Decimal(left) + " " +
         Decimal(bottom) + " Td\n(" + number + ") Tj\nET\nQ\nEMC";
}

/// The page with the font in its resources and with more content around its own; empty if it has none.
std::string ChangedPage(View page, std::size_t font, std::size_t before, std::size_t after) {
  std::string text(page);
  const std::string reference = "/Qv " + std::to_string(font) + " 0 R\n";
  if (!Insert(text, "/Font <<", reference) && !Insert(text, "/Resources <<", "/Font <<" + reference + ">>\n"))
    return {};
  constexpr View kContents = "/Contents ";
  const std::size_t begin = text.find(kContents);
  const std::size_t end = begin == text.npos ? text.npos : text.find('R', begin);
  if (end == text.npos) return {};
  text.insert(end + 1, " " + std::to_string(after) + " 0 R]");
  text.insert(begin + kContents.size(), "[" + std::to_string(before) + " 0 R ");
  return text;
}

/// The width of the page in points; 0 if it is not told.
double PageWidth(View page) {
  const auto box = After(page, "/MediaBox [0 0 ");
  return box ? static_cast<double>(NumberAt(*box).value_or(0)) : 0;
}

}  // namespace

std::optional<int> CountPdfPages(View pdf) {
  constexpr View kTree = "<</Type /Pages\n";
  constexpr std::size_t kMostPages = 100'000;
  std::size_t most = 0;
  for (std::size_t at = 0; (at = pdf.find(kTree, at)) != pdf.npos; at += kTree.size()) {
    const View node = pdf.substr(at, pdf.find("endobj", at) - at);
    const auto count = After(node, "/Count ");
    if (count) most = std::max(most, NumberAt(*count).value_or(0));
  }
  if (!pdf.starts_with("%PDF") || most == 0 || most > kMostPages) return std::nullopt;
  return static_cast<int>(most);
}

std::optional<std::string> WithPageNumbers(View pdf, const NumberPlace& place) {
  PdfFile file(pdf);
  if (!file.Read()) return std::nullopt;
  PdfUpdate update(pdf, file);
  const std::size_t font =
      update.Add("<</Type /Font\n/Subtype /Type1\n/BaseFont /Helvetica\n/Encoding /WinAnsiEncoding>>\n");
  const std::size_t before = update.AddStream("q");
  const std::string count = std::to_string(file.Pages().size());
  std::size_t number = 0;
  for (const PdfObject& page : file.Pages()) {
    const std::string text = std::to_string(++number) + " / " + count;
    const double right = PageWidth(page.text) - place.fromSide - WidthOf(text);
    const double left = place.corner == NumberCorner::BottomRight ? right : place.fromSide;
    const std::size_t after = update.AddStream(Stamp(text, left, place.fromBottom));
    const std::string changed = ChangedPage(page.text, font, before, after);
    if (changed.empty()) return std::nullopt;
    update.Put(page.number, changed);
  }
  return update.Finish();
}

}  // namespace quorvantis
