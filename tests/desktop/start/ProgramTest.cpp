// SPDX-License-Identifier: MIT
// The real program, started the way a user would.
#include "desktop/controls/QtText.h"
#include "platform/posix/FolderLock.h"
#include "support/TemporaryFolder.h"

#include <QImage>
#include <QProcess>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>

namespace quorvantis::test {
namespace {

constexpr const char* kProgram = QUORVANTIS_PROGRAM;

/// The output of ./run, in a separate folder, so that nothing else from the build can help.
TEST(Program, OffersImportInTheFirstWindow) {
  const TemporaryFolder folder;
  const std::filesystem::path application(std::filesystem::path(kProgram).parent_path());
  std::ifstream files(QUORVANTIS_APPLICATION);
  for (std::string file; std::getline(files, file);) {
    const std::filesystem::path target = folder / std::filesystem::relative(file, application);
    std::filesystem::create_directories(target.parent_path());
    std::filesystem::copy_file(file, target);
  }
  const QString picture = PathToQString(folder / "window.png");
  QProcess program;
  program.start(PathToQString(folder / "quorvantis"),
                {"--debug", "--language", "0x0409", "--screenshot", picture,
                 PathToQString(folder / "samples/world-around-us.exm")});
  ASSERT_TRUE(program.waitForFinished());
  EXPECT_EQ(program.exitCode(), 0);
  EXPECT_FALSE(QImage(picture).isNull());
  EXPECT_FALSE(program.readAllStandardError().contains("!file.Open")) << "Import is hidden";
}

/// Like the folder of a program that has just been killed.
TEST(Program, WaitsForAFolderThatIsLetGo) {
  const TemporaryFolder folder;
  std::optional<FolderLock> other = FolderLock::Take(folder.Path());
  const QString picture = PathToQString(folder / "window.png");
  QProcess program;
  program.start(kProgram, {"--app-folder", PathToQString(folder.Path()), "--language", "0x0409",
                           "--screenshot", picture});
  EXPECT_FALSE(program.waitForFinished(1000)) << "refused at once";
  other.reset();
  ASSERT_TRUE(program.waitForFinished());
  EXPECT_EQ(program.exitCode(), 0);
  EXPECT_FALSE(QImage(picture).isNull());
}

}  // namespace
}  // namespace quorvantis::test
