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
  /// The full path that the argument names, from the current directory on.
  std::filesystem::path Path() const;
  /// A whole number from 0 on, or nothing.
  std::optional<int> Index() const;

 private:
  ScriptArgument(std::string word, std::optional<std::u16string> quoted)
      : word_(std::move(word)), quoted_(std::move(quoted)) {}

  std::string word_;  ///< as it stands: a file name need not be valid UTF-8
  std::optional<std::u16string> quoted_;
};

/// A line of an editing script, taken apart. An empty `command` is a line without one.
struct EditScriptLine {
  std::string command;
  std::vector<ScriptArgument> arguments;
};

/// Takes a line apart; throws CommandError when a JSON string in it is malformed.
EditScriptLine ParseScriptLine(std::string_view line);

/// Takes a JSON string off the front of `text`, which begins with its quote. Unlike most readers this one
/// lets lone surrogates through ("\ud800"): exams can hold them. Throws CommandError when the string is
/// malformed.
std::u16string TakeJsonString(std::string_view& text);

}  // namespace quorvantis::cli
