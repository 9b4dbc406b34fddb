// SPDX-License-Identifier: MIT
// language-compiler IN.ini OUT.cpp: turns a language's text file into the tables of its library.
// language-compiler IN.ini EXCEPTIONS.ini OUT.cpp: turns it, with exceptions, into the program's own texts.
#include "LanguageFile.h"

#include <fstream>
#include <iostream>
#include <string>
#include <vector>

namespace {

using namespace quorvantis::language;

/// Why nothing was made, as a compiler says it.
struct Failure {
  std::string message;
};

/// A string literal. Everything but control characters, quotes and backslashes stays readable.
std::string Literal(const std::string& text) {
  constexpr char kDigits[] = "01234567";
  std::string literal = "\"";
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < ' ' || c == '"' || c == '\\') {
      literal += {'\\', kDigits[byte >> 6], kDigits[(byte >> 3) & 7], kDigits[byte & 7]};
    } else {
      literal += c;
    }
  }
  return literal + "\"";
}

void WriteLibraryTables(std::ostream& out, const LanguageFile& file) {
  out << "// Made by the build from a file in languages/; change that one.\n#include \"LanguageTables.h\"\n\n"
         "namespace quorvantis::language {\n\nstatic constexpr TextEntry kEntries[] = {\n";
  for (const auto& [place, text] : file.texts) {
    out << "    {" << place.first << ", " << place.second << ", " << Literal(text) << "},\n";
  }
  out << "};\n\nconst int kIdentifier = " << file.identifier
      << ";\nconst std::span<const TextEntry> kTexts(kEntries);\n\n}  // namespace quorvantis::language\n";
}

void WriteBuiltInTable(std::ostream& out, const LanguageFile& file) {
  out << "// Made by the build from languages/english.ini and languages/built-in.ini; change those.\n"
         "#include \"shell/language/BuiltInTable.h\"\n\nnamespace quorvantis {\n\n"
         "std::span<const BuiltInText> BuiltInTexts() {\n  static constexpr BuiltInText kTexts[] = {\n";
  for (const auto& [place, text] : file.texts) {
    out << "      {{" << place.first << ", " << place.second << "}, u" << Literal(text) << "},\n";
  }
  out << "  };\n  return kTexts;\n}\n\n}  // namespace quorvantis\n";
}

/// Hands the open file to `read`.
template <typename Read>
void ReadFile(const std::string& source, const Read& read) {
  std::ifstream in(source, std::ios::binary);
  if (!in) throw Failure{source + ": cannot be read"};
  try {
    read(in);
  } catch (const LanguageFileError& error) {
    throw Failure{source + ":" + std::to_string(error.Line()) + ": error: " + error.what()};
  }
}

void Compile(const std::string& source, const std::string* exceptions, const std::string& target) {
  LanguageFile file;
  ReadFile(source, [&](std::istream& in) { file = ReadLanguageFile(in); });
  if (exceptions != nullptr) ReadFile(*exceptions, [&](std::istream& in) { ReplaceTexts(file, in); });
  std::ofstream out(target, std::ios::binary);
  (exceptions == nullptr ? WriteLibraryTables : WriteBuiltInTable)(out, file);
  if (!out.flush()) throw Failure{target + ": cannot be written"};
}

}  // namespace

int main(int argumentCount, char** arguments) {
  const std::vector<std::string> names(arguments + 1, arguments + argumentCount);
  if (names.size() != 2 && names.size() != 3) {
    std::cerr << "usage: language-compiler IN.ini [EXCEPTIONS.ini] OUT.cpp\n";
    return 2;
  }
  try {
    Compile(names.front(), names.size() == 3 ? &names[1] : nullptr, names.back());
    return 0;
  } catch (const Failure& failure) {
    std::cerr << failure.message << "\n";
    return 1;
  }
}
