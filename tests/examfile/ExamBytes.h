// SPDX-License-Identifier: MIT
// Exam files written by hand, field by field. Nothing here uses the program's own description of the layout.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis::test {

using namespace std::string_literals;

/// Text units of two bytes, of one byte, and of two bytes in fields of half the width.
enum class Units { Wide, EightBit, WideInBytes };

/// What distinguishes the forms of exam files.
struct Form {
  std::string name;
  std::string start;  ///< mark and tag
  Units units;
  std::size_t fileName;       ///< width of an attachment's name; 0 if the form has no attachments
  bool current;               ///< has decimal scores, oral flags and long answers
  std::u16string titleStart;  ///< what is read as text although it is not
};

inline const std::vector<Form>& AllForms() {
  static const std::vector<Form> forms = {
      {"current", "\xFF\xFET\0a\0r\0n\0w\0i\0c\0k\0_\0D\0B\0008\0002\0003\0\0\0\0\0"s, Units::Wide, 128, true,
       u""},
      {"current8bit", "Tarnwick_DB823\0?"s, Units::EightBit, 128, true, u""},
      {"v202", "Tarnwick_v202\0??"s, Units::EightBit, 128, false, u""},
      {"v0214", "Tarnwick0214m3\0?"s, Units::EightBit, 32, false, u""},
      {"untagged", "", Units::WideInBytes, 0, false, u""},
      {"untagged8bit", "", Units::EightBit, 0, false, u""},
      {"markWithoutTag", "", Units::WideInBytes, 0, false, u"\uFEFF"}};
  return forms;
}

class ExamBytes {
 public:
  /// Fields are padded with `filler` after their terminator, where any bytes may stand.
  ExamBytes(Units units, char filler) : units_(units), filler_(filler) {}

  ExamBytes& Raw(std::string_view raw) {
    bytes += raw;
    ends.push_back(bytes.size());
    return *this;
  }
  ExamBytes& Reserved(std::size_t width) { return Raw(std::string(Size(width), filler_)); }
  ExamBytes& Text(std::u16string_view text, std::size_t width) { return Raw(Field(text, Size(width))); }

  std::string bytes;
  std::vector<std::size_t> ends;          ///< of every field
  std::vector<std::size_t> questionEnds;  ///< of every question's record

 private:
  std::size_t Size(std::size_t width) const { return units_ == Units::Wide ? 2 * width : width; }

  /// 8-bit text is in the code page of RecordingWorld.
  std::string Field(std::u16string_view text, std::size_t size) const {
    std::string field;
    for (const char16_t unit : std::u16string(text) + u'\0') {
      const bool eightBit = units_ == Units::EightBit;
      field.push_back(static_cast<char>(eightBit && unit >= 0x400 ? unit - 0x400 + 0x80 : unit & 0xFF));
      if (!eightBit) field.push_back(static_cast<char>(unit >> 8));
    }
    field.resize(size, filler_);
    return field;
  }

  Units units_;
  char filler_;
};

inline std::u16string Digits(std::size_t number) {
  const std::string digits = std::to_string(number);
  return {digits.begin(), digits.end()};
}

struct TypedFile {
  std::u16string name;
  std::string content;
  std::u16string size = Digits(content.size());
};

struct TypedQuestion {
  std::u16string kind, text{};
  std::array<std::u16string, 5> options{};
  std::u16string letters{}, answer{}, essay{};
  std::vector<TypedFile> files{};
  std::string oralFlag = "\0\0"s;
  std::optional<std::u16string> longAnswer{};
};

struct TypedExam {
  std::u16string title{};
  std::u16string score = u"3";  ///< of every range
  std::vector<TypedFile> files{};
  std::vector<TypedQuestion> questions{};
  bool shortNumbers = false;  ///< the ranges are 1 to 2 only, so that no number in the header has two digits
};

/// Random mode 2, score mode 1, ranges 1 to 51, 2 to 52, …; boundary question 7.
inline ExamBytes Type(const Form& form, const TypedExam& exam, char filler = '7') {
  ExamBytes bytes(form.units, filler);
  const auto typeFiles = [&](const std::vector<TypedFile>& files, std::string_view oralFlag) {
    bytes.Text(Digits(files.size()), 4);
    for (const TypedFile& file : files) {
      bytes.Text(file.name, form.fileName).Raw(&file == &files[0] ? oralFlag : "");
      bytes.Text(file.size, 16).Raw(file.content);
    }
  };
  bytes.Raw(form.start).Text(form.titleStart + exam.title, 256);
  bytes.Text(Digits(exam.questions.size()), 4).Text(u"2", 4).Text(u"1", 4);
  for (std::size_t i = 1; i <= 10; ++i) {
    const std::size_t first = exam.shortNumbers ? 1 : i, last = exam.shortNumbers ? 2 : i + 50;
    bytes.Text(Digits(first), 4).Text(Digits(last), 4).Text(exam.score, form.current ? 7 : 4);
  }
  if (form.fileName > 0) {
    bytes.Text(u"7", 4).Reserved(1020);
    typeFiles(exam.files, "");
  }
  for (const TypedQuestion& question : exam.questions) {
    bytes.Text(question.text, 4096);
    for (const std::u16string& option : question.options) bytes.Text(option, 256);
    bytes.Text(question.letters, 16)
        .Text(question.answer, 256)
        .Text(question.essay, 4096)
        .Text(question.kind, 4);
    if (form.fileName > 0) {
      bytes.Reserved(64);
      typeFiles(question.files, form.units == Units::Wide ? question.oralFlag : "");
    }
    if (form.current && question.longAnswer) bytes.Text(*question.longAnswer, 1024);
    bytes.questionEnds.push_back(bytes.bytes.size());
  }
  return bytes;
}

}  // namespace quorvantis::test
