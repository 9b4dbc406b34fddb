// SPDX-License-Identifier: MIT
// language-compiler IN.ini OUT.cpp: turns a language's text file into the tables of its library.
#include "LanguageFile.h"

#include <fstream>
#include <iostream>

namespace {

using namespace quorvantis::language;

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

void WriteTables(std::ostream& out, const LanguageFile& file) {
  out << "// Made by the build from a file in languages/; change that one.\n#include \"LanguageTables.h\"\n\n"
         "namespace quorvantis::language {\n\nstatic constexpr TextEntry kEntries[] = {\n";
  for (const auto& [place, text] : file.texts) {
    out << "    {" << place.first << ", " << place.second << ", " << Literal(text) << "},\n";
  }
  out << "};\n\nconst int kIdentifier = " << file.identifier
      << ";\nconst std::span<const TextEntry> kTexts(kEntries);\n\n}  // namespace quorvantis::language\n";
}

int Compile(const char* source, const char* target) {
  std::ifstream in(source, std::ios::binary);
  if (!in) {
    std::cerr << source << ": cannot be read\n";
    return 1;
  }
  try {
    const LanguageFile file = ReadLanguageFile(in);
    std::ofstream out(target, std::ios::binary);
    WriteTables(out, file);
    if (out.flush()) return 0;
    std::cerr << target << ": cannot be written\n";
  } catch (const LanguageFileError& error) {
    std::cerr << source << ":" << error.Line() << ": error: " << error.what() << "\n";
  }
  return 1;
}

}  // namespace

int main(int argumentCount, char** arguments) {
  if (argumentCount == 3) return Compile(arguments[1], arguments[2]);
  std::cerr << "usage: language-compiler IN.ini OUT.cpp\n";
  return 2;
}
