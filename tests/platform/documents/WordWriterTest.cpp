// SPDX-License-Identifier: MIT
#include "WordDocumentsTest.h"
#include "platform/documents/FlatDocument.h"
#include "platform/documents/OfficeWordWriter.h"
#include "platform/posix/PosixFiles.h"
#include "text/Utf.h"

#include <chrono>

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

/// A text, and what is read back if that differs.
constexpr std::pair<std::u16string_view, std::u16string_view> kTexts[] = {
    {u"", u""},
    {u" leading", u""},
    {u"trailing  ", u""},
    {u"two  blanks, three   blanks", u""},
    {u"   ", u""},
    {u"\ttab\t\ttabs \t blank\t", u""},
    {u"CR\rLF\nCRLF\r\n\r\n two empty \n", u"CR\vLF\vCRLF\v\v two empty \v"},
    {u"\n\r", u"\v\v"},
    {u"<b>&amp;</b> \"]]>' %s &#65; http://example.org (c) 1/2 -- :)", u""},
    {{u"a\0b\1c \a d\x1F\v\f\uFFFE\uFFFF", 14}, u"abc  d\v\v"},
    {u"x\xD83Dy\xDE00z", u"x\uFFFDy\uFFFDz"},
    {u"\U0001F600\U00020000\u2574\u3000\u00A0\uFEFF\u200B\u00AD\u2028\uFFFC\uFFF9", u""},
    {u"1.下列动物 中，哪些是？", u""},
    {u"A. \u05D4\u05E9\u05DC\u05D9\u05DE\u05D5 (1) \u200F\u0627\u0644", u""},
    {u"", u""},
};

class WordWriterTest : public WordDocumentsTest {
 protected:
  PosixFiles files;
};

TEST_F(WordWriterTest, EveryCharacterSurvives) {
  if (OfficePrograms::Find().office.empty()) GTEST_SKIP() << "LibreOffice is not installed";
  WordWriteJob job;
  std::u16string expected;
  for (const auto& [text, read] : kTexts) {
    job.paragraphs.emplace_back(text);
    expected.append(read.empty() ? text : read).append(u"\r");
  }
  job.paragraphs.push_back(std::u16string(70'000, u'字'));
  expected += job.paragraphs.back() + u"\r";
  for (const auto& [format, name] :
       {std::pair(WordFormat::Doc, "exam.doc"), {WordFormat::Docx, "试 卷.docx"}}) {
    job.target = folder / name;
    job.format = format;
    ASSERT_EQ(OfficeWordWriter(files).Write(job).result, WordWriteResult::Done) << name;
    const auto outcome = documents.Open(job.target, {});
    ASSERT_EQ(outcome.result, WordResult::Done) << name;
    EXPECT_EQ(Utf16ToUtf8(outcome.document.runningText.characters), Utf16ToUtf8(expected)) << name;
  }
  EXPECT_TRUE(ReadBytes(folder / "exam.doc").starts_with("\xD0\xCF\x11\xE0"));
  job.target = folder / "exam.pdf";
  job.format = WordFormat::Pdf;
  EXPECT_EQ(OfficeWordWriter(files).Write(job).result, WordWriteResult::Done);
  EXPECT_TRUE(ReadBytes(job.target).starts_with("%PDF-"));
}

TEST_F(WordWriterTest, ATargetThatCannotBeWrittenIsToldBeforeLibreOfficeRuns) {
  const fs::path target = WriteBytes(folder / "old.doc", "old");
  const fs::path mark = folder / "has run";
  const fs::path program = WriteBytes(folder / "soffice", "#!/bin/sh\ntouch '" + mark.string() + "'");
  fs::permissions(program, fs::perms::owner_all);
  for (const fs::path& place :
       {folder.Path(), folder / "none" / "x.doc", target / "x.doc", fs::path("/dev/null")}) {
    const auto outcome =
        OfficeWordWriter(files, {program, {}, 60s}).Write({{u"text"}, place, WordFormat::Doc, {}});
    EXPECT_EQ(outcome.result, WordWriteResult::CannotWrite) << place;
    EXPECT_EQ(outcome.place, place);
    EXPECT_TRUE(outcome.error) << place;
  }
  EXPECT_FALSE(fs::exists(mark));
  EXPECT_EQ(ReadBytes(target), "old");
}

TEST(FlatDocument, DirectionFollowsMostLetters) {
  const auto isTurned = [](std::u16string_view text) {
    return FlatDocumentOf({std::u16string(text)}).find("<text:p text:style-name=\"R\">") != std::string::npos;
  };
  for (const std::u16string_view text : {u"A. الأرض", u"1.השלימו", u"ﻻ"}) EXPECT_TRUE(isTurned(text));
  for (const std::u16string_view text : {u"", u"1.", u"The letter \u0627 is the first", u"下列"})
    EXPECT_FALSE(isTurned(text));
}

}  // namespace
}  // namespace quorvantis::test
