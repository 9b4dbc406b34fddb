// SPDX-License-Identifier: MIT
#include "WordDocumentsTest.h"
#include "platform/documents/OfficeWordWriter.h"
#include "platform/posix/PosixFiles.h"

#include <chrono>

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

const std::string kRichText =
    R"({\rtf1\ansi First\line second\par\trowd\cellx2000\cellx4000\intbl A\cell B\cell\row\pard End\par})";

class ConversionTest : public WordDocumentsTest {
 protected:
  /// A test program in place of LibreOffice. In the script, $RESULT is the document to write.
  OfficePrograms Programs(const std::string& script, std::chrono::milliseconds limit = 60s) {
    const std::string result = "RESULT=\"$7/exam.${6%%:*}\"\n";
    const fs::path program = WriteBytes(folder / "soffice", "#!/bin/sh\n" + result + script);
    fs::permissions(program, fs::perms::owner_all);
    return {program, {}, limit};
  }
  fs::path RichText() { return WriteBytes(folder / "a.rtf", kRichText); }
};

TEST_F(ConversionTest, OtherFormatsSayTheSame) {
  const fs::path office = OfficePrograms::Find().office;
  if (office.empty()) GTEST_SKIP() << "LibreOffice is not installed";
  const OfficeConverter converter(OfficePrograms::Find(), {});
  for (const std::string format : {"doc", "odt", "rtf"}) {
    const fs::path source = RichText();
    if (format != "rtf") {
      ASSERT_EQ(converter.Convert({source, {"Rich Text Format"}, format}), WordResult::Done);
    }
    // The name suggests another format, and shell tools could not handle it.
    const fs::path named = folder / "\xE8\xAF\x95 'a\"%20;.docx";
    fs::rename(folder / ("a." + format), named);
    const auto outcome = documents.Open(named, {});
    ASSERT_EQ(outcome.result, WordResult::Done) << format;
    EXPECT_EQ(Shown(outcome.document.runningText), u"First\vsecond\rEnd\r") << format;
    ASSERT_EQ(outcome.document.tables.size(), 1U) << format;
    EXPECT_EQ(outcome.document.tables[0].rows[0][1].characters, u"B\r\a") << format;
  }
  EXPECT_EQ(documents.Open(WriteBytes(folder / "b.rtf", "{\\rtf"), {}).result, WordResult::Damaged);
  const std::string deep = "{\\rtf1 " + std::string(20'000, '{');
  EXPECT_EQ(documents.Open(WriteBytes(folder / "b.rtf", deep), {}).result, WordResult::TooDeep);
}

TEST_F(ConversionTest, FaultsOfTheWordProcessorLeaveEverythingAsItWas) {
  PosixFiles files;
  const fs::path target = WriteBytes(folder / "targets/old.doc", "old");
  const auto check = [&](const OfficePrograms& programs, WordResult read, WordWriteResult written,
                         const std::function<bool()>& isCancelled = {}) {
    const WordReadOptions options{.listLabels = false, .isCancelled = isCancelled};
    EXPECT_EQ(OfficeWordDocuments(programs).Open(RichText(), options).result, read);
    const WordWriteJob job{{u"text"}, target, WordFormat::Doc, isCancelled};
    EXPECT_EQ(OfficeWordWriter(files, programs).Write(job).result, written);
    EXPECT_EQ(ReadBytes(target), "old");
    EXPECT_EQ(CountEntries(folder / "targets"), 1);
  };
  check({}, WordResult::WordProcessorMissing, WordWriteResult::WordProcessorMissing);
  check({folder / "none", {}, 1s}, WordResult::WordProcessorMissing, WordWriteResult::WordProcessorMissing);
  for (const char* script :
       {"exit 0", "kill -9 $$", "echo text > $RESULT", "printf '\\320\\317\\021\\340' > $RESULT"})
    check(Programs(script), WordResult::Damaged, WordWriteResult::WordProcessorFailed);
  check(Programs("sleep 100", 200ms), WordResult::TimedOut, WordWriteResult::TimedOut);
  check(Programs("sleep 100"), WordResult::Cancelled, WordWriteResult::Cancelled, [] { return true; });
}

TEST_F(ConversionTest, AHangingOneLeavesNothing) {
  const std::string script = "echo \"$8 $1\" > " + (folder / "folders").string() + "; sleep 100";
  EXPECT_EQ(OfficeWordDocuments(Programs(script, 1s)).Open(RichText(), {}).result, WordResult::TimedOut);
  const std::string folders = ReadBytes(folder / "folders");
  const std::size_t profile = folders.find("file://");
  ASSERT_NE(profile, std::string::npos);
  EXPECT_FALSE(fs::exists(folders.substr(0, folders.find(' ')))) << folders;
  EXPECT_FALSE(fs::exists(folders.substr(profile + 7, folders.find('\n') - profile - 7))) << folders;
}

}  // namespace
}  // namespace quorvantis::test
