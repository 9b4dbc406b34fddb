// SPDX-License-Identifier: MIT
// The converting programs, run for real. A case is skipped where its program is not installed.
#include "platform/convert/ContentKey.h"
#include "platform/convert/DocumentImages.h"
#include "platform/convert/MediaConverter.h"
#include "platform/convert/OfficeFilters.h"
#include "platform/convert/OfficeProfile.h"
#include "platform/convert/ProgramRun.h"
#include "support/TemporaryFolder.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QTcpServer>
#include <QTest>
#include <QUrl>

#include <gtest/gtest.h>

#include <csignal>

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

bool WaitFor(const std::function<bool()>& condition, int limit = 30'000) {
  QElapsedTimer timer;
  timer.start();
  while (!condition() && timer.elapsed() < limit) QTest::qWait(20);
  return condition();
}

struct ConvertTest : testing::Test {
  TemporaryFolder folder;
  ConverterPrograms programs = ConverterPrograms::Find();

  fs::path Fresh(const char* name) {
    fs::create_directories(folder / name);
    return folder / name;
  }

  std::optional<std::vector<fs::path>> Pages(DocumentImages& images, const fs::path& document) {
    std::optional<std::vector<fs::path>> result;
    const std::string extension = document.extension().string().substr(1);
    images.Make(document, QString::fromStdString(extension), Fresh(("to-" + extension).c_str()),
                [&](const auto& pages) { result = pages; });
    WaitFor([&] { return result.has_value(); }, 60'000);
    return result;
  }

  /// Makes `name` out of `source` with LibreOffice.
  bool MakeDocument(const fs::path& source, const char* extension) {
    WriteOfficeProfile(folder / "profile");
    return QProcess::execute(programs.office,
                             {"-env:UserInstallation=file://" + QString((folder / "profile").c_str()),
                              "--headless", "--convert-to", extension, "--outdir",
                              QString(folder.Path().c_str()), QString(source.c_str())}) == 0;
  }
};

TEST_F(ConvertTest, AProgramAndItsChildrenEndWhenTheTimeIsOver) {
  QObject owner;
  std::optional<bool> success;
  const QString mark = QString::fromStdString((folder / "child").string());
  RunProgram(owner,
             {"/bin/sh", {"-c", "sleep 60 & echo $! > '" + mark + "'; wait"}, std::chrono::milliseconds(500)},
             [&](bool succeeded, const QByteArray&) { success = succeeded; });
  ASSERT_TRUE(WaitFor([&] { return success.has_value(); }, 5000));
  EXPECT_FALSE(*success);
  const int child = std::stoi(ReadBytes(folder / "child"));
  EXPECT_TRUE(WaitFor([&] { return ::kill(child, 0) != 0; }, 3000)) << "the child lives";
}

TEST_F(ConvertTest, AProgramEndsWithItsOwnerAndReportsNothing) {
  auto owner = std::make_unique<QObject>();
  bool called = false;
  RunProgram(*owner,
             {"/bin/sh", {"-c", "echo $$ > '" + QString((folder / "self").c_str()) + "'; exec sleep 60"}},
             [&](bool, const QByteArray&) { called = true; });
  ASSERT_TRUE(WaitFor([&] { return ReadBytes(folder / "self").ends_with('\n'); }, 5000));
  owner.reset();
  EXPECT_NE(::kill(std::stoi(ReadBytes(folder / "self")), 0), 0);
  EXPECT_FALSE(called);
}

TEST_F(ConvertTest, MissingAndFailingProgramsReportOnce) {
  QObject owner;
  int calls = 0;
  const auto count = [&](bool succeeded, const QByteArray&) { calls += succeeded ? 100 : 1; };
  RunProgram(owner, {QString(), {}}, count);
  RunProgram(owner, {"/no/such/program", {}}, count);
  RunProgram(owner, {"/bin/false", {}}, count);
  EXPECT_EQ(calls, 0) << "not before the call returns";
  QTest::qWait(500);
  EXPECT_EQ(calls, 3);
}

TEST_F(ConvertTest, EveryKindOfOfficeDocumentHasPages) {
  if (programs.office.isEmpty() || programs.pdfImages.isEmpty())
    GTEST_SKIP() << "no LibreOffice or poppler-utils";
  const fs::path text = WriteBytes(folder / "text.rtf", "{\\rtf1 one\\page two\\par}");
  const fs::path table = WriteBytes(folder / "table.csv", "1,2,3\n4,5,6\n");
  const fs::path slides = WriteBytes(
      folder / "slides.fodp",
      "<?xml version=\"1.0\"?><office:document "
      "xmlns:office=\"urn:oasis:names:tc:opendocument:xmlns:office:1.0\""
      " xmlns:draw=\"urn:oasis:names:tc:opendocument:xmlns:drawing:1.0\" office:version=\"1.2\""
      " office:mimetype=\"application/"
      "vnd.oasis.opendocument.presentation\"><office:body><office:presentation>"
      "<draw:page/><draw:page/><draw:page/></office:presentation></office:body></office:document>");
  for (const char* extension : {"doc", "docx"}) ASSERT_TRUE(MakeDocument(text, extension));
  for (const char* extension : {"xls", "xlsx"}) ASSERT_TRUE(MakeDocument(table, extension));
  for (const char* extension : {"ppt", "pptx"}) ASSERT_TRUE(MakeDocument(slides, extension));
  DocumentImages images(programs);
  const auto count = [&](const char* name) {
    return Pages(images, folder / name).value_or(std::vector<fs::path>()).size();
  };
  EXPECT_EQ(count("text.rtf"), 2u);
  EXPECT_EQ(count("text.doc"), 2u);
  EXPECT_EQ(count("text.docx"), 2u);
  EXPECT_EQ(count("table.xls"), 1u);
  EXPECT_EQ(count("table.xlsx"), 1u);
  EXPECT_EQ(count("slides.ppt"), 3u);
  EXPECT_EQ(count("slides.pptx"), 3u);
}

/// The text has a picture that lies on a server.
TEST_F(ConvertTest, DocumentsFetchNothing) {
  if (programs.office.isEmpty()) GTEST_SKIP() << "no LibreOffice";
  QTcpServer server;
  server.listen(QHostAddress::LocalHost);
  const fs::path text = WriteBytes(
      folder / "text.fodt",
      "<?xml version=\"1.0\"?><office:document "
      "xmlns:office=\"urn:oasis:names:tc:opendocument:xmlns:office:1.0\""
      " xmlns:text=\"urn:oasis:names:tc:opendocument:xmlns:text:1.0\""
      " xmlns:draw=\"urn:oasis:names:tc:opendocument:xmlns:drawing:1.0\""
      " xmlns:svg=\"urn:oasis:names:tc:opendocument:xmlns:svg-compatible:1.0\""
      " xmlns:xlink=\"http://www.w3.org/1999/xlink\" office:version=\"1.2\""
      " office:mimetype=\"application/vnd.oasis.opendocument.text\"><office:body><office:text><text:p>"
      "<draw:frame svg:width=\"3cm\" svg:height=\"3cm\"><draw:image xlink:href=\"http://127.0.0.1:" +
          std::to_string(server.serverPort()) +
          "/x.png\"/></draw:frame></text:p></office:text></office:body></office:document>");
  ASSERT_TRUE(MakeDocument(text, "pdf"));
  QTest::qWait(100);
  EXPECT_FALSE(server.hasPendingConnections());
}

TEST_F(ConvertTest, ConversionsQueueAndDamagedDocumentsDoNotHoldTheRest) {
  if (programs.office.isEmpty() || programs.pdfImages.isEmpty())
    GTEST_SKIP() << "no LibreOffice or poppler-utils";
  DocumentImages images(programs);
  std::vector<std::size_t> counts;
  const auto note = [&](const auto& pages) { counts.push_back(pages.size()); };
  images.Make(WriteBytes(folder / "a.doc", "\xD0\xCF\x11\xE0 and no more"), "doc", Fresh("a"), note);
  images.Make(folder / "missing.doc", "doc", Fresh("b"), note);
  images.Make(WriteBytes(folder / "c c'\".doc", "{\\rtf1 x\\par}"), "doc", Fresh("c"), note);
  EXPECT_TRUE(WaitFor([&] { return counts.size() == 3; }));
  EXPECT_EQ(counts, (std::vector<std::size_t>{0, 0, 1}));
}

TEST(OfficeFilters, GoByWhatAFileIsNotByItsName) {
  EXPECT_EQ(ImportFilters("doc", "\xD0\xCF\x11\xE0"), (QStringList{"MS Word 97", "MS Word 95"}));
  EXPECT_EQ(ImportFilters("doc", "PK\x03\x04"), QStringList{"MS Word 2007 XML"});
  EXPECT_EQ(ImportFilters("odt", "PK\x03\x04"), QStringList{"writer8"});
  EXPECT_EQ(ImportFilters("doc", "{\\rtf1"), QStringList{"Rich Text Format"});
  EXPECT_EQ(ImportFilters("xls", "{\\rtf1"), QStringList());
  EXPECT_EQ(ImportFilters("doc", "plain text"), QStringList());
  EXPECT_EQ(ImportFilters("doc", ""), QStringList());
  EXPECT_EQ(ImportFilters("exe", "PK\x03\x04"), QStringList());
}

TEST(MediaFormat, TellsWhatTheBrowserPlays) {
  const auto playable = [](const char* report) { return ParseMediaFormat(report).playable; };
  EXPECT_TRUE(playable("stream|h264|video|0\nstream|aac|audio|0\nformat|mov,mp4,m4a,3gp,3g2,mj2\n"));
  EXPECT_TRUE(playable("stream|mp3|audio|0\nstream|mjpeg|video|1\nformat|mp3\n"))
      << "a record with its cover";
  EXPECT_FALSE(playable("stream|mjpeg|video|0\nformat|avi\n"));
  EXPECT_FALSE(playable("stream|h264|video|0\nformat|avi\n")) << "the container counts too";
  EXPECT_FALSE(playable("stream|mpeg4|video|0\nformat|mov,mp4,m4a\n"));
  EXPECT_FALSE(playable("stream|adpcm_ms|audio|0\nformat|wav\n"));
  EXPECT_TRUE(ParseMediaFormat("stream|wmav2|audio|0\nformat|asf\n").known);
  EXPECT_FALSE(ParseMediaFormat("stream|wmav2|audio|0\nformat|asf\n").hasPicture);
  EXPECT_FALSE(ParseMediaFormat("stream|h264|video|0\nformat|hls\n").known) << "a list of other files";
  EXPECT_FALSE(ParseMediaFormat("").known);
}

TEST_F(ConvertTest, MediaArePlayableAfterwardsOrThereAreNone) {
  if (programs.media.isEmpty() || programs.mediaInfo.isEmpty()) GTEST_SKIP() << "no ffmpeg";
  const QString tone = "sine=d=1";
  const fs::path wma = folder / "-tone: 1.wma";  // looks like an option, and like an address
  ASSERT_EQ(
      QProcess::execute("ffmpeg", {"-v", "error", "-f", "lavfi", "-i", tone, "file:" + QString(wma.c_str())}),
      0);
  const fs::path list = WriteBytes(folder / "list.avi", "#EXTM3U\n#EXTINF:1,\n" + wma.string() + "\n");
  MediaConverter converter(programs);
  std::vector<fs::path> results;
  const auto note = [&](const fs::path& playable) { results.push_back(playable); };
  converter.Make(wma, Fresh("a"), note);
  ASSERT_TRUE(WaitFor([&] { return results.size() == 1; }));
  EXPECT_EQ(results[0].filename(), "media.webm");
  converter.Make(results[0], Fresh("b"), note);
  ASSERT_TRUE(WaitFor([&] { return results.size() == 2; }));
  EXPECT_EQ(results[1], results[0]) << "what plays is left alone";
  converter.Make(list, Fresh("c"), note);
  converter.Make(WriteBytes(folder / "noise.avi", "noise"), Fresh("d"), note);
  ASSERT_TRUE(WaitFor([&] { return results.size() == 4; }));
  EXPECT_EQ(results[2], fs::path());
  EXPECT_EQ(results[3], fs::path());
}

TEST_F(ConvertTest, ContentHasOneKeyUnderEveryName) {
  const QString key = ContentKey(WriteBytes(folder / "a", "content"));
  EXPECT_EQ(ContentKey(WriteBytes(folder / "b", "content")), key);
  EXPECT_NE(ContentKey(WriteBytes(folder / "b", "changed")), key);
  EXPECT_TRUE(ContentKey(folder / "missing").isEmpty());
  const fs::path large = WriteBytes(folder / "large", "beginning");
  fs::resize_file(large, std::uintmax_t{4} << 30);
  EXPECT_EQ(ContentKey(large), ContentKey(large));
  EXPECT_FALSE(ContentKey(large).isEmpty());
}

}  // namespace
}  // namespace quorvantis::test
