// SPDX-License-Identifier: MIT
#include "cli/edit/EditScriptLine.h"

#include "cli/console/CommandError.h"
#include "text/NumberText.h"
#include "text/PathText.h"
#include "text/Utf.h"

#include <charconv>

namespace quorvantis::cli {
namespace {

constexpr std::string_view kBlanks = " \t\r";

char16_t TakeHexUnit(std::string_view& text) {
  unsigned value = 0;
  const std::string_view digits = text.substr(0, 4);
  const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
  if (digits.size() < 4 || result.ptr != digits.data() + 4)
    throw CommandError("\\u needs four hexadecimal digits");
  text.remove_prefix(4);
  return static_cast<char16_t>(value);
}

/// The unit for the escape at the front of `text`, after its backslash.
char16_t TakeEscape(std::string_view& text) {
  if (text.empty()) throw CommandError("a JSON string has no end");
  const char escape = text.front();
  text.remove_prefix(1);
  switch (escape) {
    case '"':
    case '\\':
    case '/':
      return static_cast<char16_t>(escape);
    case 'b':
      return u'\b';
    case 'f':
      return u'\f';
    case 'n':
      return u'\n';
    case 'r':
      return u'\r';
    case 't':
      return u'\t';
    case 'u':
      return TakeHexUnit(text);
    default:
      throw CommandError(std::string("\\") + escape + " is no escape of a JSON string");
  }
}

}  // namespace

std::u16string ScriptArgument::Text() const {
  return quoted_ ? *quoted_ : Utf8ToUtf16(word_);
}

std::filesystem::path ScriptArgument::Path() const {
  const std::filesystem::path path = quoted_ ? TextToPath(*quoted_) : std::filesystem::path(word_);
  if (path.empty()) throw CommandError("\"\" names no file; give the path of one");
  if (path.native().find('\0') != std::string::npos)
    throw CommandError(path.string() + ": the name of a file cannot contain a NUL");
  return std::filesystem::absolute(path).lexically_normal();
}

std::optional<int> ScriptArgument::Index() const {
  const std::u16string text = Text();
  const int value = ParseInteger(text);
  return value >= 0 && FormatInteger(value) == text ? std::optional(value) : std::nullopt;
}

std::u16string TakeJsonString(std::string_view& text) {
  text.remove_prefix(1);
  std::u16string value;
  while (!text.empty() && text.front() != '"') {
    const std::size_t plain = std::min(text.find_first_of("\"\\"), text.size());
    value += Utf8ToUtf16(text.substr(0, plain));
    text.remove_prefix(plain);
    if (!text.starts_with('\\')) continue;
    text.remove_prefix(1);
    value += TakeEscape(text);
  }
  if (text.empty()) throw CommandError("a JSON string has no end");
  text.remove_prefix(1);
  return value;
}

EditScriptLine ParseScriptLine(std::string_view line) {
  EditScriptLine parsed;
  while (true) {
    line.remove_prefix(std::min(line.find_first_not_of(kBlanks), line.size()));
    if (line.empty()) return parsed;
    if (parsed.command.empty() && line.front() == '#') return parsed;
    if (line.front() == '"' && !parsed.command.empty()) {
      parsed.arguments.push_back(ScriptArgument::Quoted(TakeJsonString(line)));
      if (!line.empty() && kBlanks.find(line.front()) == std::string_view::npos) {
        throw CommandError("a blank is missing behind a JSON string");
      }
      continue;
    }
    const std::string word(line.substr(0, line.find_first_of(kBlanks)));
    line.remove_prefix(word.size());
    if (parsed.command.empty()) {
      parsed.command = word;
    } else {
      parsed.arguments.push_back(ScriptArgument::Word(word));
    }
  }
}

}  // namespace quorvantis::cli
