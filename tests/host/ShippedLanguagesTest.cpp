// SPDX-License-Identifier: MIT
// The language libraries that the program is shipped with, as built.
#include "LanguageFile.h"
#include "platform/posix/DynamicLanguageLibraries.h"
#include "platform/texts/BankTexts.h"
#include "shell/language/BuiltInDialogTexts.h"
#include "shell/language/BuiltInStrings.h"
#include "shell/language/LanguageList.h"
#include "text/MessageText.h"
#include "text/Utf.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <sstream>

namespace quorvantis::test {
namespace {

/// The placeholders of a text, and what a translation may do with them.
class Placeholders {
 public:
  explicit Placeholders(std::u16string_view text) {
    for (std::size_t i = text.find(u'%'); i < text.size(); i = text.find(u'%', i + 1)) {
      const char16_t kind = i + 1 < text.size() ? text[i + 1] : u' ';
      if (kind == u's' || kind == u'd') {
        inOrder_ += u's';
      } else {
        (text.substr(0, i).ends_with(u'{') ? counted_ : shown_).insert(kind);
      }
    }
  }

  /// The order is free, and a number used only for the plural may be left out: not every language inflects.
  bool Fit(const Placeholders& english) const {
    std::set<char16_t> known = english.shown_;
    known.insert(english.counted_.begin(), english.counted_.end());
    return inOrder_ == english.inOrder_ && std::ranges::includes(shown_, english.shown_) &&
           std::ranges::includes(known, shown_) && std::ranges::includes(known, counted_);
  }

  bool AreNumbered() const { return inOrder_.empty(); }

 private:
  std::u16string inOrder_;
  std::set<char16_t> shown_, counted_;
};

/// The file patterns of file types, which translations must not change.
std::u16string Patterns(std::u16string_view text) {
  std::u16string patterns;
  bool isPattern = false;
  for (std::size_t bar = text.find(u'|'); bar != text.npos; bar = text.find(u'|')) {
    if (isPattern) patterns += text.substr(0, bar + 1);
    isPattern = !isPattern;
    text.remove_prefix(bar + 1);
  }
  return patterns;
}

/// "%1" or "%s"; a sign of percent stands alone.
bool HasPlaceholder(std::u16string_view text) {
  for (std::size_t i = 1; i < text.size(); ++i) {
    if (text[i - 1] != u'%') continue;
    const char16_t next = text[i];
    if ((next >= u'0' && next <= u'9') || (next >= u'a' && next <= u'z')) return true;
  }
  return false;
}

void ExpectTranslation(int number, const std::u16string& text, const std::u16string& english) {
  SCOPED_TRACE(number);
  const Placeholders placeholders(text);
  EXPECT_TRUE(placeholders.Fit(Placeholders(english))) << Utf16ToUtf8(text);
  EXPECT_TRUE(number < 1000 || placeholders.AreNumbered()) << Utf16ToUtf8(text);
  const auto isCounted = [](std::u16string_view any) { return any.find(u'{') != any.npos; };
  if (!isCounted(text) && !isCounted(english)) {
    EXPECT_EQ(Patterns(text), Patterns(english));
  }
  for (const char16_t* count : {u"0", u"1", u"2", u"7", u"38", u"100"}) {
    const auto filled = FillMessage(text, {count, count, count, count, count});
    EXPECT_EQ(filled.find_first_of(isCounted(text) ? u"{}|" : u"{}"), filled.npos) << Utf16ToUtf8(filled);
    EXPECT_FALSE(HasPlaceholder(filled)) << Utf16ToUtf8(filled);
  }
}

void ExpectComplete(const LanguageLibrary& library) {
  const BuiltInStrings english;
  for (int number = 0; number < 10'000; ++number) {
    const std::u16string text = english.Text(number);
    EXPECT_EQ(library.HasText(number), !text.empty()) << number;
    ExpectTranslation(number, library.Text(number), text);
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

/// The words that can be typed into a query are told apart by their places.
void ExpectQueryWords(const LanguageLibrary& library) {
  const BuiltInStrings english;
  for (const int number : {text_id::kQueryNames, text_id::kQueryKinds, text_id::kQueryParts}) {
    const std::u16string list = library.Text(number);
    std::set<std::u16string> words;
    for (std::size_t begin = 0; begin <= list.size();) {
      const std::size_t end = std::min(list.find(u' ', begin), list.size());
      EXPECT_LT(begin, end) << "two blanks in " << number;
      EXPECT_TRUE(words.insert(list.substr(begin, end - begin)).second) << "a word twice in " << number;
      begin = end + 1;
    }
    const std::u16string expected = english.Text(number);
    EXPECT_EQ(words.size(), 1U + static_cast<std::size_t>(std::ranges::count(expected, u' '))) << number;
    EXPECT_EQ(list.find(u':'), list.npos);
  }
}

TEST(BuiltInStrings, AreTheNumberedTexts) {
  const std::regex constant(R"(constexpr int k\w+\s*=\s*(\d+);)");
  std::vector<int> numbers;
  for (const auto& entry : std::filesystem::directory_iterator(QUORVANTIS_PROJECT "/src/platform/texts")) {
    if (entry.path().filename() == "DialogTextNumbers.h") continue;
    std::ifstream header(entry.path());
    const std::string code(std::istreambuf_iterator<char>(header), {});
    for (std::sregex_iterator found(code.begin(), code.end(), constant), end; found != end; ++found)
      numbers.push_back(std::stoi((*found)[1]));
  }
  std::ranges::sort(numbers);
  EXPECT_EQ(BuiltInStrings::Numbers(), numbers) << "a line of english.ini for each number, and no others";
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
    ExpectQueryWords(*libraries.Load(file));
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
  check("1 = \\t", "escape");
  check("1 = \\", "escape");
  check("1 = \xFF", "UTF-8");
  check("[dialogs]", "no such section");
  std::istringstream nameless("[language]\nid = 0x409\n");
  EXPECT_THROW(language::ReadLanguageFile(nameless), language::LanguageFileError);
}

}  // namespace
}  // namespace quorvantis::test
