// SPDX-License-Identifier: MIT
#include "examfile/ExamFileForm.h"

#include <algorithm>
#include <optional>

namespace quorvantis {
namespace {

/// The bytes of a tag field as 8-bit text equal `tag`.
bool HoldsEightBitTag(std::string_view field, std::u16string_view tag) {
  return std::ranges::equal(field.substr(0, field.find('\0')), tag);
}

/// The bytes of a tag field as UTF-16LE text equal `tag`.
bool HoldsWideTag(std::string_view field, std::u16string_view tag) {
  if (field.size() < 2 * tag.size()) return false;
  for (std::size_t i = 0; i < field.size() / 2; ++i) {
    const char16_t unit = i < tag.size() ? tag[i] : u'\0';
    if (field[2 * i] != static_cast<char>(unit) || field[2 * i + 1] != '\0') return false;
    if (unit == u'\0') break;
  }
  return true;
}

/// Whether a number field can be read as a number, character by character: empty, or a sign and digits up to
/// NUL.
template <class UnitAt>
bool LooksLikeNumber(std::size_t units, UnitAt unitAt) {
  for (std::size_t i = 0; i < units && unitAt(i) != 0; ++i) {
    const auto unit = unitAt(i);
    const bool sign = i == 0 && unit == '-';
    if (!sign && (unit < '0' || unit > '9')) return false;
  }
  return true;
}

/// Looks at the number fields of a header: read as 8-bit text, and as UTF-16.
class NumberProbe {
 public:
  explicit NumberProbe(std::string_view header) : header_(header) {}

  bool OnlyEightBitMakesSense() const { return eightBit_ && !wide_; }

  void Text(const std::u16string&, std::size_t units) { Next(units); }
  void Reserved(std::size_t units) { Next(units); }
  void Score(float, std::size_t units) { Next(units); }
  void WholeScore(float, std::size_t units) { Probe(Next(units)); }
  template <class Integer>
  void Number(const Integer&, std::size_t units) {
    Probe(Next(units));
  }

 private:
  std::string_view Next(std::size_t bytes) {
    const std::string_view field = header_.substr(0, bytes);
    header_.remove_prefix(field.size());
    return field;
  }

  void Probe(std::string_view field) {
    const auto byteAt = [&](std::size_t i) { return static_cast<unsigned char>(field[i]); };
    const auto unitAt = [&](std::size_t i) { return byteAt(2 * i) + 256 * byteAt(2 * i + 1); };
    eightBit_ = eightBit_ && LooksLikeNumber(field.size(), byteAt);
    wide_ = wide_ && LooksLikeNumber(field.size() / 2, unitAt);
  }

  std::string_view header_;
  bool eightBit_ = true;
  bool wide_ = true;
};

/// The fields of a header without an exam around them: the probe looks at widths only.
struct HeaderShape {
  std::u16string title;
  int questionCount, randomMode, scoreMode, boundaryQuestion;
  std::array<int, kScoreRanges> scoreFrom, scoreTo;
  std::array<float, kScoreRanges> scoreValue;
};

/// Untagged files were written with UTF-16 and with 8-bit text; nothing but their numbers tells which.
FieldEncoding UntaggedEncoding(ByteSource& source) {
  constexpr std::size_t kHeaderBytes = 1024;  // more than an untagged header has
  NumberProbe probe(source.Peek(kHeaderBytes));
  const HeaderShape shape{};
  VisitHeader(kUntaggedVersion, shape, probe);
  return probe.OnlyEightBitMakesSense() ? FieldEncoding::EightBit : FieldEncoding::Utf16InBytes;
}

}  // namespace

ExamFileForm RecogniseForm(ByteSource& source) {
  constexpr std::size_t kMark = kByteOrderMark.size();
  const std::string_view start = source.Peek(kMark + 2 * kTagUnits);
  if (start.starts_with(kByteOrderMark) && HoldsWideTag(start.substr(kMark), kCurrentVersion.tag)) {
    source.Take(kMark + 2 * kTagUnits);
    return {&kCurrentVersion, FieldEncoding::Utf16};
  }
  // Tags of older files are 8-bit text, and so are all their fields: a UTF-16 tag does not fit the field.
  for (const ExamFileVersion* version : {&kCurrentVersion, &kVersion202, &kVersion0214}) {
    if (!HoldsEightBitTag(start.substr(0, kTagUnits), version->tag)) continue;
    source.Take(kTagUnits);
    return {version, FieldEncoding::EightBit};
  }
  return {&kUntaggedVersion, UntaggedEncoding(source)};
}

}  // namespace quorvantis
