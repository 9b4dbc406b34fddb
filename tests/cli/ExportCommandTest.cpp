// SPDX-License-Identifier: MIT
#include "CommandLineTest.h"
#include "platform/documents/OfficeWordDocuments.h"
#include "text/Utf.h"

namespace quorvantis::test {
namespace {

class ExportCommands : public CommandLineTest {
 protected:
  ExportCommands() { Build({{"title", "T"}, {"questions", {{{"text", "a\tb"}}}}}); }

  void ExpectDone(const RunResult& run, const char* message) {
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, message);
  }
  std::string TextOf(const char* document) const {
    const auto outcome = OfficeWordDocuments().Open(folder / document, {});
    return outcome.result == WordResult::Done ? Utf16ToUtf8(outcome.document.runningText.characters)
                                              : "(not read)";
  }

  const std::string exam = Path("exam.exm");
};

TEST_F(ExportCommands, WriteWhatTheNameSays) {
  if (OfficePrograms::Find().office.empty()) GTEST_SKIP() << "LibreOffice is not installed";
  const std::string text = "T\rScore Distribution\rEach question has the same scores\r1.";
  const char* const done = "quorvantis-cli: Save as *.Doc Success!\n";
  ExpectDone(Command({"export", exam, Path("b.docx")}), "");
  EXPECT_EQ(TextOf("b.docx"), text + "a\tb\r");
  ExpectDone(Command({"export", exam, Path("c.PDF")}), "");
  EXPECT_TRUE(ReadBytes(folder / "c.PDF").starts_with("%PDF-"));
  ExpectDone(Command({"export", exam, Path("试 卷.DOC")}), done);
  EXPECT_TRUE(ReadBytes(folder / "试 卷.DOC").starts_with("\xD0\xCF\x11\xE0"));
  ExpectDone(Command({"edit"}, "open " + exam + "\ntext typed\nsaveas " + Path("d.doc") + "\nstate\n"), done);
  EXPECT_EQ(TextOf("d.doc"), text + "typed\r");
}

TEST_F(ExportCommands, FailuresAreToldInOneLine) {
  for (const char* name : {"a.txt", "a.exm", "doc", ".doc", "a.doc~"})
    ExpectFailure(Command({"export", exam, Path(name)}), "let it end in .doc, .docx or .pdf");
  std::filesystem::create_hard_link(exam, folder / "same.doc");
  ExpectFailure(Command({"export", exam, Path("same.doc")}), "same.doc: is a file to read");
  ExpectFailure(Command({"export", Path("absent.exm"), Path("a.doc")}), "There is no such file");
  const char* const found = std::getenv("PATH");  // NOLINT(concurrency-mt-unsafe): a test has one thread
  const std::string path = found == nullptr ? "" : found;
  setenv("PATH", "/absent", 1);  // NOLINT(concurrency-mt-unsafe)
  ExpectFailure(Command({"export", exam, Path("a.doc")}), "Create dispatch failed.");
  const RunResult edit = Command({"edit"}, "saveas " + Path("a.doc"));
  setenv("PATH", path.c_str(), 1);  // NOLINT(concurrency-mt-unsafe)
  EXPECT_EQ(edit.status, 1);
  EXPECT_NE(edit.err.find("\nquorvantis-cli: standard input:1: saveas failed\n"), std::string::npos)
      << edit.err;
}

}  // namespace
}  // namespace quorvantis::test
