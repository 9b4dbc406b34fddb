// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis::cli {

/// One argument of an editing command: a plain word, or a JSON string where it needs blanks or escapes.
class ScriptArgument {
 public:
  static ScriptArgument Word(std::string word) { return ScriptArgument(std::move(word), std::nullopt); }
  static ScriptArgument Quoted(std::u16string text) { return ScriptArgument({}, std::move(text)); }

  std::u16string Text() const;
  /// The full path that the argument names, from the current directory on. Throws CommandError if it can name
  /// no file.
  std::filesystem::path Path() const;
  /// A whole number, at least 0, or nothing.
  std::optional<int> Index() const;

 private:
  ScriptArgument(std::string word, std::optional<std::u16string> quoted)
      : word_(std::move(word)), quoted_(std::move(quoted)) {}

  std::string word_;  ///< unchanged: a file name need not be valid UTF-8
  std::optional<std::u16string> quoted_;
};

/// A parsed line of an editing script. An empty `command` is a line without one.
struct EditScriptLine {
  std::string command;
  std::vector<ScriptArgument> arguments;
};

/// Parses a line; throws CommandError if a JSON string in it is malformed.
EditScriptLine ParseScriptLine(std::string_view line);

/// Removes a JSON string from the front of `text`, which begins with its quote. Unlike most parsers this one
/// accepts lone surrogates ("\ud800"): exams can contain them. Throws CommandError when the string is
/// malformed.
std::u16string TakeJsonString(std::string_view& text);

}  // namespace quorvantis::cli
