// SPDX-License-Identifier: MIT
#include "WordDocumentsTest.h"

#include <chrono>
#include <unistd.h>

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

const std::string kRichText =
    R"({\rtf1\ansi First\line second\par\trowd\cellx2000\cellx4000\intbl A\cell B\cell\row\pard End\par})";

/// One that has ended may stay listed when nobody asks for it.
bool IsRunning(int process) {
  const std::string state = ReadBytes("/proc/" + std::to_string(process) + "/stat");
  return !state.empty() && state.find(") Z ") == std::string::npos;
}

class ConversionTest : public WordDocumentsTest {
 protected:
  /// A program of a test in the place of LibreOffice.
  OfficeWordDocuments ReaderWith(const std::string& script, std::chrono::milliseconds limit = 60s) {
    const fs::path program = WriteBytes(folder / "soffice", "#!/bin/sh\n" + script);
    fs::permissions(program, fs::perms::owner_all);
    return OfficeWordDocuments({program, {}, limit});
  }
  fs::path RichText() { return WriteBytes(folder / "a.rtf", kRichText); }
  WordReadOptions Cancelled() {
    return {.listLabels = false, .isCancelled = [] { return true; }};
  }
};

TEST_F(ConversionTest, OtherFormatsSayTheSame) {
  const fs::path office = OfficePrograms::Find().office;
  if (office.empty()) GTEST_SKIP() << "LibreOffice is not installed";
  const std::string cell = "<w:tc><w:p><w:r><w:t>A</w:t></w:r></w:p></w:tc>";
  const fs::path docx =
      DocxBuilder()
          .Body(
              "<w:p><w:r><w:t>First</w:t><w:br/><w:t>second</w:t></w:r><m:oMath><m:r><m:t>x</m:t></m:r></"
              "m:oMath>"
              "</w:p><w:tbl><w:tblPr/><w:tblGrid><w:gridCol w:w=\"999\"/></w:tblGrid><w:tr>" +
              cell + cell + "</w:tr></w:tbl><w:p><w:r><w:t>End</w:t></w:r></w:p>")
          .Write(folder / "source.docx");
  const OfficeConverter converter(OfficePrograms::Find(), {});
  for (const std::string format : {"doc", "odt", "rtf"}) {
    ASSERT_EQ(converter.Convert({docx, {"MS Word 2007 XML"}, format}), WordResult::Done);
    // The name promises something else, and no tool of the shell could take it.
    const fs::path named = folder / "\xE8\xAF\x95 'a\"%20;.docx";
    fs::rename(folder / ("source." + format), named);
    const auto outcome = documents.Open(named, {});
    ASSERT_EQ(outcome.result, WordResult::Done) << format;
    EXPECT_EQ(Shown(outcome.document.runningText), u"First\vsecond<#>\rEnd\r") << format;
    ASSERT_EQ(outcome.document.tables.size(), 1U) << format;
    EXPECT_EQ(outcome.document.tables[0].rows[0][1].characters, u"A\r\a") << format;
  }
  EXPECT_EQ(documents.Open(WriteBytes(folder / "b.rtf", "{\\rtf"), {}).result, WordResult::Damaged);
}

TEST_F(ConversionTest, FaultsOfTheWordProcessor) {
  EXPECT_EQ(OfficeWordDocuments(OfficePrograms()).Open(RichText(), {}).result,
            WordResult::WordProcessorMissing);
  EXPECT_EQ(OfficeWordDocuments({folder / "none", {}, 1s}).Open(RichText(), {}).result,
            WordResult::WordProcessorMissing);
  EXPECT_EQ(ReaderWith("exit 0").Open(RichText(), {}).result, WordResult::Damaged);
  EXPECT_EQ(ReaderWith("kill -9 $$").Open(RichText(), {}).result, WordResult::Damaged);
  EXPECT_EQ(ReaderWith("sleep 100").Open(RichText(), Cancelled()).result, WordResult::Cancelled);
}

TEST_F(ConversionTest, AHangingOneEndsWithItsChildrenAndLeavesNothing) {
  const std::string script = "sleep 100 & echo $! > " + (folder / "child").string() + "; echo \"$8 $1\" > " +
                             (folder / "folders").string() + "; wait";
  EXPECT_EQ(ReaderWith(script, 1s).Open(RichText(), {}).result, WordResult::TimedOut);
  const int child = std::stoi(ReadBytes(folder / "child"));
  for (int i = 0; i < 100 && IsRunning(child); ++i) ::usleep(10'000);
  EXPECT_FALSE(IsRunning(child));
  const std::string folders = ReadBytes(folder / "folders");
  const std::size_t profile = folders.find("file://");
  ASSERT_NE(profile, std::string::npos);
  EXPECT_FALSE(fs::exists(folders.substr(0, folders.find(' ')))) << folders;
  EXPECT_FALSE(fs::exists(folders.substr(profile + 7, folders.find('\n') - profile - 7))) << folders;
}

}  // namespace
}  // namespace quorvantis::test
