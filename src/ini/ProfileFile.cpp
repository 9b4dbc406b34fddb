// SPDX-License-Identifier: MIT
#include "ini/ProfileFile.h"

#include "platform/WholeFile.h"
#include "text/AsciiCase.h"
#include "text/NumberText.h"
#include "text/WithoutAround.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::size_t kMaxBytes = std::size_t{16} * 1024 * 1024;
constexpr std::u16string_view kBlanks = u" \t";

bool IsLineBreak(char16_t unit) {
  return unit == u'\r' || unit == u'\n';
}

std::u16string_view Trim(std::u16string_view text) {
  return WithoutAround(text, kBlanks);
}

std::u16string_view Unquote(std::u16string_view text) {
  const bool quoted =
      text.size() >= 2 && text.front() == text.back() && (text[0] == u'"' || text[0] == u'\'');
  return quoted ? text.substr(1, text.size() - 2) : text;
}

bool IsSectionLine(std::u16string_view line) {
  return Trim(line).starts_with(u'[');
}

std::u16string_view SectionName(std::u16string_view line) {
  const std::u16string_view text = Trim(line);
  return Trim(text.substr(1, text.find(u']') - 1));
}

bool IsEntry(std::u16string_view line, std::u16string_view key) {
  const std::u16string_view text = Trim(line);
  const std::size_t equals = text.find(u'=');
  if (text.starts_with(u';') || equals == std::u16string_view::npos) return false;
  return EqualsIgnoringAsciiCase(Trim(text.substr(0, equals)), key);
}

/// Where the value of an entry begins in its line, after the blanks.
std::size_t ValueBegin(std::u16string_view entry) {
  const std::size_t equals = entry.find(u'=');
  return std::min(entry.find_first_not_of(kBlanks, equals + 1), entry.size());
}

std::u16string_view ValueIn(std::u16string_view entry) {
  return Unquote(Trim(entry.substr(ValueBegin(entry))));
}

bool FitsInOneLine(std::u16string_view text) {
  return std::ranges::none_of(text, [](char16_t unit) { return IsLineBreak(unit) || unit == u'\0'; });
}

/// Half a unit at the end holds no text, and text appended to it would be read wrong.
std::string WithoutHalfUnit(std::string bytes, const ProfileEncoding& encoding) {
  bytes.erase(bytes.size() - bytes.size() % encoding.UnitSize());
  return bytes;
}

}  // namespace

ProfileFile::ProfileFile(const std::filesystem::path& file, const CodePage* codePage)
    : encoding_(ProfileEncoding::Of({}, codePage)) {
  std::optional<std::string> bytes = ReadWholeFile(file, kMaxBytes);
  whole_ = bytes.has_value();
  if (whole_) Take(*std::move(bytes), codePage);
}

ProfileFile::ProfileFile(std::string bytes, const CodePage* codePage)
    : whole_(true), encoding_(ProfileEncoding::Of({}, codePage)) {
  Take(std::move(bytes), codePage);
}

void ProfileFile::Take(std::string bytes, const CodePage* codePage) {
  encoding_ = ProfileEncoding::Of(bytes, codePage);
  bytes_ = WithoutHalfUnit(std::move(bytes), encoding_);
}

std::optional<std::u16string> ProfileFile::Value(std::u16string_view section, std::u16string_view key) const {
  const std::optional<Line> entry = Find(section, key).entry;
  if (!entry) return std::nullopt;
  return std::u16string(ValueIn(TextOf(*entry)));
}

std::map<std::u16string, std::u16string> ProfileFile::ValuesOf(std::u16string_view key) const {
  std::map<std::u16string, std::u16string> values;
  std::optional<std::u16string> section;
  for (std::size_t at = encoding_.MarkSize(); at < bytes_.size();) {
    const Line line = LineAt(at);
    at = line.next;
    const std::u16string text = TextOf(line);
    if (IsSectionLine(text))
      section = SectionName(text);
    else if (section && IsEntry(text, key))
      values.try_emplace(*section, ValueIn(text));
  }
  return values;
}

std::vector<std::u16string> ProfileFile::Sections() const {
  std::vector<std::u16string> names;
  for (std::size_t at = encoding_.MarkSize(); at < bytes_.size();) {
    const Line line = LineAt(at);
    at = line.next;
    const std::u16string text = TextOf(line);
    if (IsSectionLine(text)) names.emplace_back(SectionName(text));
  }
  return names;
}

/// Works on the bytes: the rest of the line may hold what its encoding cannot give back.
bool ProfileFile::SetDigits(std::u16string_view section, std::u16string_view key, int number) {
  const std::optional<Line> entry = Find(section, key).entry;
  if (!entry) return false;
  const std::size_t unitSize = encoding_.UnitSize();
  const auto unit = [&](std::size_t at) { return at < entry->end ? encoding_.UnitAt(bytes_, at) : u'\0'; };
  std::size_t begin = entry->begin;
  while (begin < entry->end && unit(begin) != u'=') begin += unitSize;
  do begin += unitSize;
  while (kBlanks.find(unit(begin)) != kBlanks.npos || unit(begin) == u'"' || unit(begin) == u'\'');
  std::size_t end = begin;
  while (IsDigit(unit(end))) end += unitSize;
  const std::optional<std::string> digits = encoding_.Encode(FormatInteger(number));
  if (end == begin || !digits) return false;
  bytes_.replace(begin, end - begin, *digits);
  return true;
}

bool ProfileFile::Append(std::u16string_view lines) {
  const Line first = LineAt(encoding_.MarkSize());
  const std::u16string lineEnd = first.next == first.end ? u"\n" : LineBreak();
  const std::size_t end = bytes_.size();
  const bool isMidLine =
      end > encoding_.MarkSize() && !IsLineBreak(encoding_.UnitAt(bytes_, end - encoding_.UnitSize()));
  std::u16string text = isMidLine ? lineEnd : std::u16string();
  for (const char16_t unit : lines) {
    if (unit == u'\n')
      text += lineEnd;
    else
      text += unit;
  }
  const std::optional<std::string> bytes = encoding_.Encode(text);
  if (bytes) bytes_ += *bytes;
  return bytes.has_value();
}

bool ProfileFile::SetValue(std::u16string_view section, std::u16string_view key, std::u16string_view value) {
  if (!FitsInOneLine(section) || !FitsInOneLine(key) || !FitsInOneLine(value)) return false;
  const Place place = Find(section, key);
  if (place.entry) return Replace(*place.entry, value);
  const std::u16string entry = std::u16string(key) + u'=' + std::u16string(value) + LineBreak();
  if (place.sectionEnd) return InsertLines(*place.sectionEnd, entry);
  return InsertLines(bytes_.size(), u'[' + std::u16string(section) + u']' + LineBreak() + entry);
}

ProfileFile::Line ProfileFile::LineAt(std::size_t begin) const {
  const std::size_t unitSize = encoding_.UnitSize();
  const auto isAt = [&](std::size_t at, char16_t unit) {
    return at < bytes_.size() && encoding_.UnitAt(bytes_, at) == unit;
  };
  std::size_t end = begin;
  while (end < bytes_.size() && !IsLineBreak(encoding_.UnitAt(bytes_, end))) end += unitSize;
  std::size_t next = end;
  if (isAt(next, u'\r')) next += unitSize;
  if (isAt(next, u'\n')) next += unitSize;
  return {begin, end, next};
}

std::u16string ProfileFile::TextOf(const Line& line) const {
  return encoding_.Decode(std::string_view(bytes_).substr(line.begin, line.end - line.begin));
}

ProfileFile::Place ProfileFile::Find(std::u16string_view section, std::u16string_view key) const {
  Place place;
  bool inSection = false;
  bool inFirst = false;  // a section may stand more than once; a new key goes to the first
  for (std::size_t at = encoding_.MarkSize(); at < bytes_.size();) {
    const Line line = LineAt(at);
    at = line.next;
    const std::u16string text = TextOf(line);
    if (IsSectionLine(text)) {
      inSection = EqualsIgnoringAsciiCase(SectionName(text), section);
      inFirst = inSection && !place.sectionEnd;
    }
    if (inFirst && !Trim(text).empty()) place.sectionEnd = line.next;
    if (inSection && !IsSectionLine(text) && IsEntry(text, key)) {
      place.entry = line;
      break;
    }
  }
  return place;
}

/// Blanks around the key and its own spelling stay.
bool ProfileFile::Replace(const Line& line, std::u16string_view value) {
  std::u16string text = TextOf(line);
  text.replace(ValueBegin(text), std::u16string::npos, value);
  const std::optional<std::string> bytes = encoding_.Encode(text);
  if (bytes) bytes_.replace(line.begin, line.end - line.begin, *bytes);
  return bytes.has_value();
}

bool ProfileFile::InsertLines(std::size_t position, std::u16string lines) {
  const std::size_t unitSize = encoding_.UnitSize();
  const bool afterText = position > encoding_.MarkSize();
  if (afterText && !IsLineBreak(encoding_.UnitAt(bytes_, position - unitSize))) lines.insert(0, LineBreak());
  const std::optional<std::string> bytes = encoding_.Encode(lines);
  if (bytes) bytes_.insert(position, *bytes);
  return bytes.has_value();
}

/// The line break of the file's first line; profile files of other programs use CR LF.
std::u16string ProfileFile::LineBreak() const {
  const Line first = LineAt(encoding_.MarkSize());
  if (first.next == first.end) return u"\r\n";
  return TextOf({first.end, first.next, first.next});
}

}  // namespace quorvantis
