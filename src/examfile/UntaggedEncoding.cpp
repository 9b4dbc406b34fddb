// SPDX-License-Identifier: MIT
#include "examfile/UntaggedEncoding.h"

#include "examfile/FileTextDecoder.h"
#include "text/Utf.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// How unlikely characters are in a text, in bits: roughly the logarithm of how rare they are. Precision does
/// not matter, because reading in the wrong encoding gives nonsense: words become random ideographs,
/// ideographs become letters mixed with control characters.
struct Surprise {
  char16_t first, last;
  int bits;
};

constexpr Surprise kSurprises[] = {
    {u' ', u' ', 3},
    {u'a', u'z', 5},
    {u'A', u'Z', 8},
    {u'0', u'9', 8},
    {u'\t', u'\n', 7},
    {u'\r', u'\r', 7},
    {u'!', u'"', 8},
    {u'\'', u')', 8},
    {u',', u'/', 8},
    {u':', u';', 8},
    {u'?', u'?', 8},
    {u' ', u'~', 11},            // other signs
    {u'\u00A0', u'\u00BF', 12},  // signs of western languages
    {u'\u00C0', u'\u1FFF', 9},   // alphabets
    {u'\u2010', u'\u2040', 11},  // dashes and quotation marks
    {u'\u3000', u'\u30FF', 10},  // punctuation and kana
    {u'\u4E00', u'\u9FFF', 15},  // ideographs
    {u'\uAC00', u'\uD7A3', 17},  // Korean syllables
    {u'\uFF00', u'\uFF60', 10},  // full-width punctuation
};
constexpr int kStrangeCharacter = 24;  ///< control characters, malformed bytes, private use and the like
constexpr int kSupplementary = 20;     ///< a pair of surrogates

/// Any bytes may follow a terminator, but most programs left none.
constexpr int kLeftoverBytes = 8;
constexpr int kLeftoverByte = 8;

/// A difference of this many bits is no coincidence.
constexpr int kClearly = 6;

int SurpriseOf(char16_t unit) {
  const auto holds = [unit](const Surprise& range) { return range.first <= unit && unit <= range.last; };
  const auto* const range = std::ranges::find_if(kSurprises, holds);
  return range == std::end(kSurprises) ? kStrangeCharacter : range->bits;
}

int SurpriseOf(std::u16string_view text) {
  int bits = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool pair = IsHighSurrogate(text[i]) && i + 1 < text.size() && IsLowSurrogate(text[i + 1]);
    bits += pair ? kSupplementary : SurpriseOf(text[i]);
    if (pair) ++i;
  }
  return bits;
}

int SurpriseOfLeftover(std::string_view bytes) {
  const std::size_t last = bytes.find_last_not_of('\0');
  return last == bytes.npos ? 0 : kLeftoverBytes + kLeftoverByte * static_cast<int>(last + 1);
}

/// Where a text with units of `size` bytes ends: at its terminator, or at the end of the field.
std::size_t TextBytes(std::string_view field, std::size_t size) {
  std::size_t end = 0;
  while (end + size <= field.size() && field.substr(end, size).find_first_not_of('\0') != field.npos) {
    end += size;
  }
  return end;
}

/// A visitor that passes the bytes of each field to `Field`, whatever they are.
template <class Probe>
class BytesOfFields {
 public:
  explicit BytesOfFields(std::string_view bytes) : rest_(bytes) {}

  std::size_t Left() const { return rest_.size(); }

  void Text(const std::u16string&, ExamFileField field) { Self().TextField(Next(field)); }
  void Reserved(ExamFileField field) { Next(field); }
  void Score(float, ExamFileField field) { Self().NumberField(Next(field)); }
  void WholeScore(float, ExamFileField field) { Self().NumberField(Next(field)); }
  template <class Integer>
  void Number(const Integer&, ExamFileField field) {
    Self().NumberField(Next(field));
  }

 private:
  Probe& Self() { return static_cast<Probe&>(*this); }
  std::string_view Next(ExamFileField field) {
    const std::string_view bytes = rest_.substr(0, field.Bytes(CharUnit::OneByte));
    rest_.remove_prefix(bytes.size());
    return bytes;
  }

  std::string_view rest_;
};

/// Whether a number field is a valid number: empty, or a sign and digits up to NUL.
template <class UnitAt>
bool LooksLikeNumber(std::size_t units, UnitAt unitAt) {
  for (std::size_t i = 0; i < units && unitAt(i) != 0; ++i) {
    const auto unit = unitAt(i);
    const bool sign = i == 0 && unit == '-';
    if (!sign && (unit < '0' || unit > '9')) return false;
  }
  return true;
}

/// Checks the number fields, read as 8-bit text and as UTF-16.
class NumberProbe : public BytesOfFields<NumberProbe> {
 public:
  using BytesOfFields::BytesOfFields;

  bool eightBit = true;
  bool wide = true;

  void TextField(std::string_view) {}
  void NumberField(std::string_view field) {
    const auto byteAt = [&](std::size_t i) { return static_cast<unsigned char>(field[i]); };
    const auto unitAt = [&](std::size_t i) { return byteAt(2 * i) + 256 * byteAt(2 * i + 1); };
    eightBit = eightBit && LooksLikeNumber(field.size(), byteAt);
    wide = wide && LooksLikeNumber(field.size() / 2, unitAt);
  }
};

/// Adds up how unlikely all texts and numbers are in each encoding.
class TextProbe : public BytesOfFields<TextProbe> {
 public:
  TextProbe(std::string_view start, const CodePage& codePage)
      : BytesOfFields(start), eightBitText_(codePage), wideText_(codePage) {
    eightBitText_.SetWide(false);
    wideText_.SetWide(true);
  }

  bool IsClearlyEightBit() const { return eightBit_ + kClearly <= wide_; }

  void TextField(std::string_view field) {
    eightBit_ += Weigh(field, eightBitText_, 1);
    wide_ += Weigh(field, wideText_, 2);
  }
  void NumberField(std::string_view field) { TextField(field); }

 private:
  static int Weigh(std::string_view field, const FileTextDecoder& decoder, std::size_t unit) {
    const std::string_view leftover = field.substr(TextBytes(field, unit));
    return SurpriseOf(decoder.Decode(field)) + SurpriseOfLeftover(leftover);
  }

  FileTextDecoder eightBitText_;
  FileTextDecoder wideText_;
  int eightBit_ = 0;
  int wide_ = 0;
};

/// Fields of a header without an exam: the probes only use widths.
struct HeaderShape {
  std::u16string title;
  int questionCount, randomMode, scoreMode, boundaryQuestion;
  std::array<int, kScoreRanges> scoreFrom, scoreTo;
  std::array<float, kScoreRanges> scoreValue;
};

}  // namespace

FieldEncoding UntaggedEncoding(std::string_view start, const CodePage& codePage) {
  const HeaderShape header{};
  NumberProbe numbers(start);
  VisitHeader(kUntaggedVersion, header, numbers);
  if (!numbers.eightBit) return FieldEncoding::Utf16InBytes;
  if (!numbers.wide) return FieldEncoding::EightBit;

  const ExamQuestion question;
  TextProbe texts(start.substr(0, kUntaggedStart), codePage);
  VisitHeader(kUntaggedVersion, header, texts);
  while (texts.Left() > 0) VisitQuestion(kUntaggedVersion, question, question.answerText, texts);
  return texts.IsClearlyEightBit() ? FieldEncoding::EightBit : FieldEncoding::Utf16InBytes;
}

}  // namespace quorvantis
