// SPDX-License-Identifier: MIT
// Runs the real conversion programs. A case is skipped if its program is not installed.
#include "platform/convert/DocumentImages.h"
#include "platform/convert/MediaConverter.h"
#include "platform/convert/ProgramRun.h"
#include "platform/programs/OfficeProfile.h"
#include "support/Processes.h"
#include "support/TemporaryFolder.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QTcpServer>
#include <QTest>

#include <gtest/gtest.h>

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

bool WaitFor(const std::function<bool()>& condition, int limit = 100'000) {
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

  /// Converts `source` with LibreOffice into the same folder.
  bool MakeDocument(const fs::path& source, const char* extension) {
    const fs::path profile = folder / "profile";
    WriteOfficeProfile(profile);
    return QProcess::execute(programs.office, {"-env:UserInstallation=file://" + QString(profile.c_str()),
                                               "--headless", "--convert-to", extension, "--outdir",
                                               folder.Path().c_str(), source.c_str()}) == 0;
  }
};

TEST_F(ConvertTest, AProgramThatComesForwardLivesAndOneThatStandsStillEnds) {
  QObject owner;
  const auto run = [&](const char* script) {
    std::optional<bool> success;
    ProgramOrder order{"/bin/sh", {"-c", script}};
    order.progress = ProgressSigns{"at=", std::chrono::milliseconds(700)};
    RunProgram(owner, order, [&](bool succeeded, const QByteArray&) { success = succeeded; });
    EXPECT_TRUE(WaitFor([&] { return success.has_value(); }, 8000));
    return success.value_or(false);
  };
  EXPECT_TRUE(run("for n in 1 2 3 4 5; do echo at=$n; sleep 0.4; done"));
  EXPECT_FALSE(run("for n in 1 2 3 4 5; do echo at=1; echo speed=$n; sleep 0.4; done"));
  EXPECT_FALSE(run("sleep 60"));
  EXPECT_FALSE(run("exit 1"));
}

TEST_F(ConvertTest, AProgramEndsWithItsOwnerAndReportsNothing) {
  auto owner = std::make_unique<QObject>();
  bool called = false;
  RunProgram(*owner,
             {"/bin/sh", {"-c", "echo $$ > '" + QString((folder / "self").c_str()) + "'; exec sleep 60"}},
             [&](bool, const QByteArray&) { called = true; });
  ASSERT_TRUE(WaitFor([&] { return ReadBytes(folder / "self").ends_with('\n'); }, 5000));
  owner.reset();
  EXPECT_FALSE(IsRunning(std::stoi(ReadBytes(folder / "self"))));
  EXPECT_FALSE(called);
}

/// An OpenDocument file in the flat form, a single XML file.
std::string FlatDocument(const std::string& kind, const std::string& content) {
  return "<?xml version=\"1.0\"?><office:document office:version=\"1.2\""
         " office:mimetype=\"application/vnd.oasis.opendocument." +
         kind +
         "\""
         " xmlns:office=\"urn:oasis:names:tc:opendocument:xmlns:office:1.0\""
         " xmlns:text=\"urn:oasis:names:tc:opendocument:xmlns:text:1.0\""
         " xmlns:draw=\"urn:oasis:names:tc:opendocument:xmlns:drawing:1.0\""
         " xmlns:svg=\"urn:oasis:names:tc:opendocument:xmlns:svg-compatible:1.0\""
         " xmlns:xlink=\"http://www.w3.org/1999/xlink\"><office:body><office:" +
         kind + ">" + content + "</office:" + kind + "></office:body></office:document>";
}

TEST_F(ConvertTest, DocumentsFetchNothing) {
  if (programs.office.isEmpty()) GTEST_SKIP() << "no LibreOffice";
  QTcpServer server;
  server.listen(QHostAddress::LocalHost);
  const std::string picture = "http://127.0.0.1:" + std::to_string(server.serverPort()) + "/x.png";
  const std::string content =
      "<text:p><draw:frame svg:width=\"3cm\" svg:height=\"3cm\"><draw:image xlink:href=\"" + picture +
      "\"/></draw:frame></text:p>";
  ASSERT_TRUE(MakeDocument(WriteBytes(folder / "text.fodt", FlatDocument("text", content)), "pdf"));
  QTest::qWait(100);
  EXPECT_FALSE(server.hasPendingConnections());
}

TEST_F(ConvertTest, ConversionsQueueAndDamagedDocumentsDoNotHoldTheRest) {
  if (programs.office.isEmpty() || programs.pdfImages.isEmpty())
    GTEST_SKIP() << "no LibreOffice or poppler-utils";
  DocumentImages images(programs, Fresh("office"));
  std::map<std::string, std::size_t> counts;
  const auto make = [&](const fs::path& document, const char* extension) {
    const std::string name = document.filename();
    images.Make(document, extension, Fresh(("of " + name).c_str()),
                [&counts, name](const auto& pages) { counts[name] = pages.size(); });
  };
  const fs::path slides =
      WriteBytes(folder / "slides.fodp", FlatDocument("presentation", "<draw:page/><draw:page/>"));
  ASSERT_TRUE(MakeDocument(slides, "ppt"));
  ASSERT_TRUE(MakeDocument(WriteBytes(folder / "table.csv", "1,2,3\n4,5,6\n"), "xlsx"));
  make(WriteBytes(folder / "damaged", "\xD0\xCF\x11\xE0 and no more"), "doc");
  make(folder / "missing", "doc");
  make(WriteBytes(folder / "text c'\"", "{\\rtf1 one\\page two\\par}"), "doc");
  make(folder / "slides.ppt", "ppt");
  make(folder / "table.xlsx", "xlsx");
  EXPECT_TRUE(WaitFor([&] { return counts.size() == 5; }));
  EXPECT_EQ(counts,
            (std::map<std::string, std::size_t>{
                {"damaged", 0}, {"missing", 0}, {"text c'\"", 2}, {"slides.ppt", 2}, {"table.xlsx", 1}}));
}

TEST(MediaFormat, TellsWhatTheBrowserPlays) {
  const auto playable = [](const char* report) { return ParseMediaFormat(report).playable; };
  EXPECT_TRUE(playable("stream|h264|video|0\nstream|aac|audio|0\nformat|mov,mp4,m4a,3gp,3g2,mj2\n"));
  EXPECT_TRUE(playable("stream|mp3|audio|0\nstream|mjpeg|video|1\nformat|mp3\n"))
      << "a record with its cover";
  EXPECT_FALSE(playable("stream|h264|video|0\nformat|avi\n")) << "the container counts too";
  EXPECT_FALSE(playable("stream|mpeg4|video|0\nformat|mov,mp4,m4a\n"));
  EXPECT_FALSE(ParseMediaFormat("stream|wmav2|audio|0\nformat|asf\n").hasPicture);
  EXPECT_FALSE(ParseMediaFormat("stream|h264|video|0\nformat|hls\n").known) << "a list of other files";
}

TEST_F(ConvertTest, MediaArePlayableAfterwardsOrThereAreNone) {
  if (programs.media.isEmpty() || programs.mediaInfo.isEmpty()) GTEST_SKIP() << "no ffmpeg";
  const fs::path wma = folder / "-tone: 1.wma";  // looks like an option and like a URL
  ASSERT_EQ(QProcess::execute(
                "ffmpeg", {"-v", "error", "-f", "lavfi", "-i", "sine=d=1", "file:" + QString(wma.c_str())}),
            0);
  MediaConverter converter(programs);
  const auto made = [&](const fs::path& file, const char* target) {
    std::optional<fs::path> playable;
    converter.Make(file, Fresh(target), [&](const fs::path& result) { playable = result; });
    EXPECT_TRUE(WaitFor([&] { return playable.has_value(); }));
    return playable.value_or("nothing");
  };
  const fs::path playable = made(wma, "a");
  EXPECT_EQ(playable.filename(), "media.webm");
  EXPECT_EQ(made(playable, "b"), playable) << "what plays is left alone";
  EXPECT_EQ(made(WriteBytes(folder / "list.avi", "#EXTM3U\n#EXTINF:1,\n" + wma.string() + "\n"), "c"), "");
  EXPECT_EQ(made(WriteBytes(folder / "noise.avi", "noise"), "d"), "");
}

}  // namespace
}  // namespace quorvantis::test
