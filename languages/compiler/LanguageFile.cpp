// SPDX-License-Identifier: MIT
#include "LanguageFile.h"

#include "text/Utf.h"

#include <algorithm>
#include <charconv>
#include <istream>
#include <limits>
#include <string_view>

namespace quorvantis::language {
namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr int kLanguageName = 158;

std::string_view Trim(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r";
  const std::size_t begin = text.find_first_not_of(kBlanks);
  if (begin == std::string_view::npos) return {};
  return text.substr(begin, text.find_last_not_of(kBlanks) - begin + 1);
}

/// Reads the file line by line and knows where it is.
class LineReader {
 public:
  explicit LineReader(std::istream& in, const LanguageFile* base = nullptr) : in_(in), base_(base) {}

  LanguageFile Read() {
    ReadLines();
    if (!hasIdentifier_)
      Fail("there is no identifier; \"[language]\" with \"id = 0x....\" below it is missing");
    if (!file_.texts.contains({0, kLanguageName})) Fail("string 158, the name of the language, is missing");
    return std::move(file_);
  }

  std::map<LanguageFile::Place, std::string> ReadExceptions() {
    ReadLines();
    return std::move(file_.texts);
  }

 private:
  enum class Section { None, Language, Texts };

  void ReadLines() {
    for (std::string line; std::getline(in_, line);) {
      ++number_;
      CheckEncoding(line);
      std::string_view text = line;
      if (number_ == 1 && text.starts_with(kUtf8Mark)) text.remove_prefix(kUtf8Mark.size());
      TakeLine(Trim(text));
    }
  }

  [[noreturn]] void Fail(const std::string& problem) const { throw LanguageFileError(number_, problem); }

  void CheckEncoding(std::string_view line) const {
    while (!line.empty()) {
      const Utf8Step step = DecodeUtf8(line);
      if (!step.valid || step.codePoint == 0) Fail("this is not UTF-8 text");
      line.remove_prefix(step.length);
    }
  }

  void TakeLine(std::string_view line) {
    if (line.empty() || line.front() == ';') return;
    if (line.front() == '[') {
      EnterSection(line);
      return;
    }
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) Fail("neither a section nor \"number = text\"");
    const std::string_view key = Trim(line.substr(0, equals));
    const std::string_view value = Trim(line.substr(equals + 1));
    switch (section_) {
      case Section::None:
        Fail("a text outside of any section");
      case Section::Language:
        TakeSetting(key, value);
        return;
      case Section::Texts:
        TakeText(key, value);
        return;
    }
  }

  void EnterSection(std::string_view line) {
    constexpr std::string_view kDialog = "[dialog ";
    dialog_ = 0;
    if (line == "[language]") {
      section_ = Section::Language;
      return;
    }
    section_ = Section::Texts;
    if (line == "[strings]") return;
    if (!line.starts_with(kDialog) || !line.ends_with(']')) Fail("no such section: " + std::string(line));
    dialog_ = Number(line.substr(kDialog.size(), line.size() - kDialog.size() - 1));
    if (dialog_ == 0) Fail("there is no dialog 0");
  }

  void TakeSetting(std::string_view key, std::string_view value) {
    if (key != "id") Fail("no such setting: " + std::string(key));
    const int identifier = value.starts_with("0x") ? Number(value.substr(2), 16) : Number(value);
    if (identifier > std::numeric_limits<std::uint16_t>::max()) Fail("an identifier has at most 16 bits");
    file_.identifier = static_cast<std::uint16_t>(identifier);
    hasIdentifier_ = true;
  }

  void TakeText(std::string_view key, std::string_view value) {
    const auto [text, isNew] = file_.texts.try_emplace({dialog_, Number(key)}, Unescape(value));
    if (!isNew) Fail("there is a text of number " + std::string(key) + " already");
    if (base_ != nullptr) CheckException(*text);
  }

  void CheckException(const std::pair<const LanguageFile::Place, std::string>& exception) const {
    const auto text = base_->texts.find(exception.first);
    if (text == base_->texts.end()) Fail("no exception: the language has no text of this number");
    if (text->second == exception.second) Fail("no exception: the language has the same text");
  }

  int Number(std::string_view digits, int base = 10) const {
    int number = -1;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number, base);
    if (error != std::errc() || end != digits.data() + digits.size() || number < 0) {
      Fail("not a number: \"" + std::string(digits) + "\"");
    }
    return number;
  }

  std::string Unescape(std::string_view text) const {
    std::string result;
    while (!text.empty()) {
      const std::size_t backslash = std::min(text.find('\\'), text.size());
      result += text.substr(0, backslash);
      text.remove_prefix(backslash);
      if (!text.empty()) TakeEscape(text, result);
    }
    return result;
  }

  /// Takes an escape off the front of `text` and appends what it stands for.
  void TakeEscape(std::string_view& text, std::string& result) const {
    constexpr std::size_t kCodeDigits = 4;
    const char kind = text.size() > 1 ? text[1] : ' ';
    text.remove_prefix(std::min<std::size_t>(2, text.size()));
    if (kind == 'n') {
      result += '\n';
    } else if (kind == '\\') {
      result += '\\';
    } else if (kind == 'u' && text.size() >= kCodeDigits) {
      const auto unit = static_cast<char16_t>(Number(text.substr(0, kCodeDigits), 16));
      if (unit == 0 || IsHighSurrogate(unit) || IsLowSurrogate(unit)) Fail("there is no such character");
      AppendCodePoint(result, char32_t{unit});
      text.remove_prefix(kCodeDigits);
    } else {
      Fail("an escape is \\n, \\\\ or \\uXXXX");
    }
  }

  std::istream& in_;
  const LanguageFile* base_;  ///< of which texts are exceptions; may be null
  int number_ = 0;
  LanguageFile file_;
  Section section_ = Section::None;
  int dialog_ = 0;
  bool hasIdentifier_ = false;
};

}  // namespace

LanguageFile ReadLanguageFile(std::istream& in) {
  return LineReader(in).Read();
}

void ReplaceTexts(LanguageFile& file, std::istream& exceptions) {
  for (auto& [place, text] : LineReader(exceptions, &file).ReadExceptions()) {
    file.texts.at(place) = std::move(text);
  }
}

}  // namespace quorvantis::language
