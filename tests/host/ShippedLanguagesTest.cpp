// SPDX-License-Identifier: MIT
// The language libraries that come with the program, as they were built.
#include "LanguageFile.h"
#include "platform/posix/DynamicLanguageLibraries.h"
#include "shell/language/BuiltInDialogTexts.h"
#include "shell/language/BuiltInStrings.h"
#include "shell/language/LanguageList.h"

#include <gtest/gtest.h>

#include <sstream>

namespace quorvantis::test {
namespace {

/// What a translation must leave as it is: the placeholders, and the patterns of file kinds. The forms of a
/// counted text stand in the place of one number.
std::u16string FixedParts(std::u16string filled) {
  std::u16string parts;
  for (std::size_t open = filled.find(u'{'); open != filled.npos; open = filled.find(u'{')) {
    const std::size_t close = filled.find(u'}', open);
    if (close == filled.npos) return u"a brace is missing";
    filled.replace(open, close + 1 - open, u"%d");
  }
  std::u16string_view text = filled;
  for (std::size_t i = text.find(u'%'); i != std::u16string_view::npos; i = text.find(u'%', i + 1)) {
    parts += text.substr(i, 2) == u"%s" ? u"%d" : text.substr(i, 2);
  }
  bool isPattern = false;
  for (std::size_t bar = text.find(u'|'); bar != std::u16string_view::npos; bar = text.find(u'|')) {
    if (isPattern) parts += text.substr(0, bar + 1);
    isPattern = !isPattern;
    text.remove_prefix(bar + 1);
  }
  return parts;
}

void ExpectComplete(const LanguageLibrary& library) {
  for (const int number : BuiltInStrings::Numbers()) {
    EXPECT_TRUE(library.HasText(number)) << number << " has no text";
    EXPECT_EQ(FixedParts(library.Text(number)), FixedParts(BuiltInStrings().Text(number))) << number;
  }
  for (const auto& [dialog, control] : BuiltInDialogControls()) {
    EXPECT_NE(library.DialogText(dialog, control), u"") << "dialog " << dialog << ", " << control;
  }
  for (const std::string_view name : {"128", "206", "227", "nextQUESTIONU", "ListSeparatroX"}) {
    for (const int scale : {1, 2}) EXPECT_FALSE(library.Bitmap(name, scale).empty()) << name << scale;
  }
  EXPECT_TRUE(library.Bitmap("128", 3).empty());
  EXPECT_TRUE(library.Bitmap("none", 1).empty());
}

TEST(ShippedLanguages, HaveAllTexts) {
  DynamicLanguageLibraries libraries;
  std::error_code error;
  const LanguageList list = ScanLanguageLibraries(QUORVANTIS_LANGUAGES, libraries, error);
  EXPECT_EQ(list.languageIds, (std::vector<std::uint16_t>{0x0409, 0x0804, 0x0401}));
  EXPECT_EQ(list.languageNames, (std::vector<std::u16string>{u"English", u"简体中文", u"العربية"}));
  for (const std::filesystem::path& file : list.languageFiles) {
    SCOPED_TRACE(file);
    ExpectComplete(*libraries.Load(file));
  }
  EXPECT_EQ(libraries.Load(list.languageFiles.at(0))->Text(156), u"Cancel");
}

TEST(LanguageFile, IsReadAsItIsWritten) {
  std::istringstream text(
      "\xEF\xBB\xBF; remark\r\n[language]\nid = 1033\n[strings]\n158=x\n 1 = a = \\\\ \\n\\u2069  \n2 =\n"
      "[dialog 7]\n1 = in a dialog");
  const language::LanguageFile file = language::ReadLanguageFile(text);
  EXPECT_EQ(file.identifier, 1033);
  EXPECT_EQ(file.texts.at({0, 1}), "a = \\ \n\xE2\x81\xA9");
  EXPECT_EQ(file.texts.at({0, 2}), "");
  EXPECT_EQ(file.texts.at({7, 1}), "in a dialog");
}

TEST(LanguageFile, FaultsAreToldWithTheirLine) {
  const auto check = [](const std::string& line, const char* problem) {
    std::istringstream text("[language]\nid = 0x409\n[strings]\n158=x\n" + line + "\n");
    try {
      language::ReadLanguageFile(text);
      ADD_FAILURE() << line;
    } catch (const language::LanguageFileError& error) {
      EXPECT_EQ(error.Line(), 5);
      EXPECT_NE(std::string(error.what()).find(problem), std::string::npos) << line << ": " << error.what();
    }
  };
  check("158 = again", "already");
  check("text", "neither");
  check("x = text", "not a number");
  check("-1 = text", "not a number");
  check("1 = \\t", "escape");
  check("1 = \\", "escape");
  check("1 = \\u12", "escape");
  check("1 = \\uD800", "no such character");
  check("1 = \xFF", "UTF-8");
  check("[dialogs]", "no such section");
  check("[dialog 0]", "no dialog");
  check("[dialog x]", "not a number");
  std::istringstream nameless("[language]\nid = 0x409\n");
  EXPECT_THROW(language::ReadLanguageFile(nameless), language::LanguageFileError);
}

TEST(LanguageFile, ExceptionsAreExact) {
  language::LanguageFile file;
  file.texts = {{{0, 1}, "a"}, {{7, 1}, "b"}};
  const auto replace = [&file](const std::string& exceptions) {
    std::istringstream in(exceptions);
    language::ReplaceTexts(file, in);
  };
  EXPECT_THROW(replace("[strings]\n1 = a"), language::LanguageFileError) << "no difference";
  EXPECT_THROW(replace("[strings]\n7 = c"), language::LanguageFileError) << "no such text";
  replace("[dialog 7]\n1 = c");
  EXPECT_EQ(file.texts.at({0, 1}), "a");
  EXPECT_EQ(file.texts.at({7, 1}), "c");
}

}  // namespace
}  // namespace quorvantis::test
