// SPDX-License-Identifier: MIT
#include "platform/posix/LinuxProcessTable.h"
#include "platform/posix/PosixFiles.h"
#include "shell/office/OfficeControl.h"
#include "support/RecordingWorld.h"
#include "support/SleepingProcess.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;
using Strings = std::vector<std::u16string>;

const std::u16string kZone = u"Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\Zones\\3";

class OfficeControlTest : public testing::Test {
 protected:
  OfficeControlTest() { fs::create_directory(folder / "app"); }

  bool Registered(const std::string& text) {
    return ReadBytes(folder / "app" / kRegistryFile).find(text) != std::string::npos;
  }

  TemporaryFolder folder;
  PosixFiles files;
  RecordingWorld world{folder / "app", files};
  LinuxProcessTable allProcesses;
  ProcessesBelow processes{folder.Path(), allProcesses};
  OfficeControl office{world.services, processes};
};

TEST_F(OfficeControlTest, AsksAndEndsOfficePrograms) {
  SleepingProcess other(folder / "winword");
  office.processes.AskCloseOffice();
  EXPECT_EQ(world.dialogs.questions, Strings()) << "no office program";

  SleepingProcess word(folder / "Office/winword.exe");
  SleepingProcess inFolder(folder / "my Excel.exe files/viewer");
  SleepingProcess slides(folder / "POWERPNT.EXE.bin");
  office.processes.AskCloseOffice();
  EXPECT_EQ(world.dialogs.questions, Strings{u"[159 %s]"});
  EXPECT_EQ(world.debug.lines, Strings()) << "the answer was No";
  EXPECT_TRUE(office.processes.IsOfficeRunning());

  world.dialogs.yesNoAnswers = {true};
  office.processes.AskCloseOffice();
  EXPECT_EQ(world.debug.lines, Strings(4, u"KillWordExeProc")) << "one for each process, of office or not";
  EXPECT_TRUE(word.Ends() && inFolder.Ends() && slides.Ends() && other.IsAlive());
  EXPECT_FALSE(office.processes.IsOfficeRunning());
}

TEST_F(OfficeControlTest, SetsWhatInstalledProgramsHaveKeysFor) {
  office.settings.RegisterBrowsableTypes();
  office.settings.AllowZoneAction();
  office.TrustApplicationFolder(true);
  office.TrustApplicationFolder(false);
  EXPECT_FALSE(fs::exists(folder / "app" / kRegistryFile)) << "without keys nothing is written";

  world.registry.CreateKey(RegistryRoot::ClassesRoot, u"Excel.Sheet.12");
  world.registry.CreateKey(RegistryRoot::ClassesRoot, u"Word.Document.12");
  world.registry.CreateKey(RegistryRoot::CurrentUser, kZone);
  office.settings.RegisterBrowsableTypes();
  office.settings.AllowZoneAction();
  EXPECT_TRUE(
      Registered("\\Excel.Sheet.12]\n\"BrowserFlags\"=dword:00000000\n\"EditFlags\"=dword:00010000\n"));
  EXPECT_TRUE(
      Registered("\\Word.Document.12]\n\"BrowserFlags\"=dword:00000024\n\"EditFlags\"=dword:00010000\n"));
  EXPECT_TRUE(Registered("\\Zones\\3]\n\"2103\"=dword:00000000\n"));
  EXPECT_FALSE(Registered("PowerPoint"));
}

/// Deliberate: as many bytes as the path has characters.
TEST_F(OfficeControlTest, StoresTheFirstHalfOfTheTrustedPath) {
  world.registry.CreateKey(RegistryRoot::CurrentUser,
                           u"Software\\Microsoft\\Office\\12.0\\Excel\\Security\\Trusted Locations");
  world.services.applicationFolder = "/q\u00E9/x";
  office.TrustApplicationFolder(true);
  EXPECT_TRUE(
      Registered("\\Excel\\Security\\Trusted Locations\\LocationQuorvantis]\n"
                 "\"AllowSubfolders\"=dword:00000001\n\"Path\"=hex(1):2f007100e9\n"));
  EXPECT_FALSE(Registered("PowerPoint"));
}

}  // namespace
}  // namespace quorvantis::test
