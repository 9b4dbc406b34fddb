// SPDX-License-Identifier: MIT
// Another program's parser of XML takes every exported file: ours, with which the other tests read them,
// forgives much.
#include "Players.h"
#include "RandomExam.h"
#include "exchange/Formats.h"
#include "exchange/structure/FormatRules.h"
#include "shell/language/BuiltInStrings.h"
#include "support/RecordingWorld.h"

#include <QStandardPaths>

#include <gtest/gtest.h>

namespace quorvantis::test {
namespace {

constexpr unsigned kParsedExams = 60;

/// What xmllint complains of, and whether it was content.
std::pair<bool, std::string> Lint(const QStringList& files) {
  QProcess lint;
  lint.setProcessChannelMode(QProcess::MergedChannels);
  lint.start("xmllint", QStringList{"--noout", "--nonet"} + files);
  const bool hasEnded = lint.waitForFinished(60'000);  // milliseconds, on a busy machine
  return {hasEnded && lint.exitCode() == 0, lint.readAll().toStdString()};
}

TEST(WellFormed, IsEveryExportedFile) {
  if (QStandardPaths::findExecutable("xmllint").isEmpty()) GTEST_SKIP() << "needs libxml2-utils";
  const TemporaryFolder folder;
  InterruptedProgress progress;
  QStringList files;
  for (const std::string_view name : {"qti", "canvas", "moodle"}) {
    const FormatRow& format = *FormatNamed(name);
    for (unsigned seed = 1; seed <= kParsedExams; ++seed) {
      ExchangeNotes notes;
      const ExchangedExam exam = HeldExam(format.held, RandomExam(folder.Path(), seed).Make(6), notes);
      const auto written =
          WriteBytes(folder / "file", format.writer()->Write(exam, BuiltInStrings(), progress));
      for (const auto& [part, bytes] : PartsOf(written)) {
        if (!part.empty() && !part.ends_with(".xml")) continue;
        const auto file =
            folder / (std::string(name) + std::to_string(seed)) / (part.empty() ? "quiz.xml" : part);
        files.append(PlayerPath(WriteBytes(file, bytes)));
      }
    }
  }
  ASSERT_GT(files.size(), 3 * static_cast<int>(kParsedExams));
  const auto [isContent, complaints] = Lint(files);
  EXPECT_TRUE(isContent) << complaints.substr(0, 2000);
  const auto broken = WriteBytes(folder / "broken.xml", "<a b='1' b='2'/>");
  EXPECT_FALSE(Lint({PlayerPath(broken)}).first);
}

}  // namespace
}  // namespace quorvantis::test
