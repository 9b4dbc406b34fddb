// SPDX-License-Identifier: MIT
#include "host/SavedRules.h"
#include "import/ExamImport.h"
#include "import/marking/RuleKeys.h"
#include "learn/rules/SafeRules.h"
#include "platform/posix/IconvCodePage.h"
#include "platform/posix/PosixFiles.h"
#include "support/TemporaryFolder.h"
#include "text/NumberText.h"
#include "text/Utf.h"

#include <gtest/gtest.h>

#include <fstream>
#include <random>
#include <thread>

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

std::string BytesOf(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

void Write(const fs::path& file, const std::string& bytes) {
  std::ofstream(file, std::ios::binary) << bytes;
}

/// How a file stores its text.
std::string Stored(std::u16string_view text, int encoding) {
  if (encoding < 2) return (encoding == 1 ? "\xEF\xBB\xBF" : "") + Utf16ToUtf8(text);
  if (encoding == 4) return IconvCodePage("GB18030").Encode(text).value_or("");
  std::string bytes = encoding == 2 ? "\xFF\xFE" : "\xFE\xFF";
  for (const char16_t unit : text) {
    const char low = static_cast<char>(unit & 0xFF);
    const char high = static_cast<char>(unit >> 8);
    bytes += encoding == 2 ? low : high;
    bytes += encoding == 2 ? high : low;
  }
  return bytes;
}

class SavedRulesTest : public ::testing::Test {
 protected:
  ImportSettings Read(const std::u16string& name) {
    ExamImport import(file_, codePage_);
    import.m_strDocPath = file_;
    import.Open();
    import.m_strRepository = name;
    EXPECT_EQ(import.Accept(), 0) << Utf16ToUtf8(name);
    return import;
  }

  std::vector<std::u16string> Names() {
    ExamImport import(file_, codePage_);
    import.Open();
    return import.Repositories();
  }

  SavedRules Save(const Repository& repository) { return SaveRules(file_, repository, codePage_, files_); }

  TemporaryFolder folder_;
  fs::path file_ = folder_.Path() / "ImportExam.ini";
  IconvCodePage codePage_{"GB18030"};
  PosixFiles files_;
};

Repository Named(std::u16string name) {
  Repository repository{std::move(name), {}};
  repository.rules.m_strPattern = u"(?<Q2>.*)";
  repository.rules.m_strPreAnswer = u"Answer:";
  return repository;
}

std::u16string RandomText(std::mt19937& random, std::u16string_view units) {
  std::u16string text;
  for (std::size_t left = 1 + random() % 12; left > 0; --left) text += units[random() % units.size()];
  return text;
}

/// What is added is read back, whatever the file looks like, and all that was there stays.
TEST_F(SavedRulesTest, AddWithoutTouchingTheRest) {
  std::mt19937 random(7);
  for (int round = 0; round < 150; ++round) {
    const std::u16string end = random() % 2 == 0 ? u"\r\n" : u"\n";
    std::u16string front = u"; " + RandomText(random, u"中文x") + u"\u4E2D" + end + u"[repository]" + end;
    const bool isQuoted = random() % 2 == 0;
    front += isQuoted ? u"SIZE= \"" : u"Size = ";
    std::u16string back = (isQuoted ? u"\" " : u" ; two of them") + end + u"[0]" + end + u"Name=Old\u4E2D" +
                          end + u"PreAnswer=a" + end + u"Pattern= (?<Q2>.) " + end + u"[1]" + end +
                          u"Name=Other";
    if (random() % 2 == 0) back += end;
    const int encoding = static_cast<int>(random() % 5);
    const std::string before = Stored(front + u"2" + back, encoding);
    Write(file_, before);

    Repository added = Named(u"N" + RandomText(random, u"ew\u4E2D =\"[]#") + u"x");
    for (const PatternRule& rule : kPatternRules)
      added.rules.*rule.pattern = RandomText(random, u"a\u4E2D \\\\;\"'[]=\u27E6");
    added.rules.listLabels = random() % 2 == 0;
    added.rules.prepare = {u"KeyLetters", u"OpenAnswers"};
    const SavedRules saved = Save(added);
    const std::string after = BytesOf(file_);
    ASSERT_TRUE(saved.AreSaved()) << Utf16ToUtf8(saved.other) << static_cast<int>(saved.refusal);

    const std::string raised = Stored(front + u"3" + back, encoding);
    ASSERT_EQ(after.substr(0, raised.size()), raised);
    const ImportSettings read = Read(added.name);
    for (const PatternRule& rule : kPatternRules)
      EXPECT_EQ(read.*rule.pattern, SafePattern(added.rules.*rule.pattern)) << Utf16ToUtf8(rule.key);
    EXPECT_EQ(read.listLabels, added.rules.listLabels);
    EXPECT_EQ(read.prepare, added.rules.prepare);
    EXPECT_EQ(Read(u"Old\u4E2D").m_strPattern, u"(?<Q2>.)");
  }
}

TEST_F(SavedRulesTest, GoToTheNextFreeNumber) {
  const struct {
    const char* before;
    std::size_t listed;  ///< names afterwards
    const char* section;
  } kCases[] = {
      {"", 1, "[0]"},
      {"; nothing", 1, "[0]"},
      {"[Repository]\n", 1, "[0]"},
      {"[Repository]\nSize=x\n", 1, "[0]"},
      {"[Repository]\nSize=9\n[0]\nName=a\n", 9, "[1]"},
      {"[Repository]\nSize=1\n[0]\nName=a\n[1]\nName=hidden\n", 3, "[2]"},
      {"[Repository]\nSize=2147483647\n[0]\nName=a\n", 2, "[1]"},
  };
  for (const auto& row : kCases) {
    Write(file_, row.before);
    ASSERT_TRUE(Save(Named(u"new")).AreSaved()) << row.before;
    EXPECT_EQ(Names().size(), row.listed) << row.before;
    EXPECT_NE(BytesOf(file_).find(row.section), std::string::npos) << row.before;
    EXPECT_EQ(Read(u"new").m_strPreAnswer, u"Answer:") << row.before;
  }
}

TEST_F(SavedRulesTest, AreRefusedWithTheReason) {
  Write(file_, "[Repository]\nSize=1\n[0]\nName=Math 2\n");
  const std::string before = BytesOf(file_);
  Repository tooLong = Named(u"long");
  tooLong.rules.m_strTitle.assign(1024, u'x');
  Repository broken = Named(u"broken");
  broken.rules.m_strTitle = u"a\nb";
  const struct {
    Repository repository;
    RepositoryRefusal refusal;
    std::u16string other;
  } kCases[] = {
      {Named(u""), RepositoryRefusal::NameEmpty, u""},
      {Named(u"math 2"), RepositoryRefusal::NameTaken, u"Math 2"},
      {Named(u"Math"), RepositoryRefusal::NamePrefix, u"Math 2"},
      {Named(u"Math 22"), RepositoryRefusal::NamePrefix, u"Math 2"},
      {Named(u"\"x\""), RepositoryRefusal::NameUnsafe, u""},
      {Named(u"x "), RepositoryRefusal::NameUnsafe, u""},
      {Named(u"#1"), RepositoryRefusal::NameUnsafe, u""},
      {Named(u"a\nb"), RepositoryRefusal::NameUnsafe, u""},
      {tooLong, RepositoryRefusal::RuleTooLong, u"Title"},
      {broken, RepositoryRefusal::RuleUnsafe, u"Title"},
      {Named(u"lone\xD800"), RepositoryRefusal::CannotEncode, u"Name"},
  };
  for (const auto& row : kCases) {
    const SavedRules saved = Save(row.repository);
    EXPECT_EQ(saved.refusal, row.refusal) << Utf16ToUtf8(row.repository.name);
    EXPECT_EQ(saved.other, row.other) << Utf16ToUtf8(row.repository.name);
    EXPECT_EQ(BytesOf(file_), before);
  }
  file_ = folder_.Path() / "other.ini";
  EXPECT_FALSE(Save(Named(u"")).AreSaved());
  EXPECT_FALSE(fs::exists(file_)) << "nothing is left behind";
}

TEST_F(SavedRulesTest, AreAllKeptWhenManySaveAtOnce) {
  constexpr int kWriters = 8;
  constexpr int kEach = 5;
  const auto name = [](int writer, int i) {
    return u"w" + FormatInteger(writer) + u"." + FormatInteger(i) + u"!";
  };
  std::vector<std::thread> writers;
  writers.reserve(kWriters);
  for (int writer = 0; writer < kWriters; ++writer) {
    writers.emplace_back([&, writer] {
      PosixFiles files;
      for (int i = 0; i < kEach; ++i)
        EXPECT_TRUE(SaveRules(file_, Named(name(writer, i)), codePage_, files).AreSaved());
    });
  }
  for (std::thread& writer : writers) writer.join();
  EXPECT_EQ(Names().size(), std::size_t{kWriters} * kEach);
  for (int i = 0; i < kEach; ++i) EXPECT_EQ(Read(name(3, i)).m_strPreAnswer, u"Answer:");
}

}  // namespace
}  // namespace quorvantis::test
