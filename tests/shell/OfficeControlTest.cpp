// SPDX-License-Identifier: MIT
#include "editor/ExamEditor.h"
#include "platform/posix/LinuxProcessTable.h"
#include "platform/posix/PosixFiles.h"
#include "shell/CloseSequence.h"
#include "shell/OfficeControl.h"
#include "shell/PreviewCommand.h"
#include "support/RecordingWorld.h"
#include "support/SleepingProcess.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;
using Strings = std::vector<std::u16string>;

const std::u16string kOffice = u"Software\\Microsoft\\Office\\12.0\\";
const std::u16string kZone = u"Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\Zones\\3";

/// Files that tell when one is about to be written.
class WatchedFiles : public PosixFiles {
 public:
  std::function<void(const fs::path& target)> onReplace;
  std::unique_ptr<PendingFile> Replace(const fs::path& target, std::error_code& error) override {
    if (onReplace) onReplace(target);
    return PosixFiles::Replace(target, error);
  }
};

class OfficeControlTest : public testing::Test, protected EditorView {
 protected:
  OfficeControlTest() { fs::create_directory(folder / "app"); }

  /// What the registry has, as text; the beginning of key paths left out.
  std::string Registered() { return ReadBytes(folder / "app" / kRegistryFile); }
  bool Trusts(const char* application) {
    return Registered().find(std::string(application) +
                             "\\Security\\Trusted Locations\\LocationQuorvantis]") != std::string::npos;
  }
  void InstallOffice() {
    for (const std::u16string application : {u"PowerPoint", u"Excel"}) {
      world.registry.CreateKey(RegistryRoot::CurrentUser,
                               kOffice + application + u"\\Security\\Trusted Locations");
    }
  }

  TemporaryFolder folder;
  WatchedFiles files;
  RecordingWorld world{folder / "app", files};
  LinuxProcessTable allProcesses;
  ProcessesBelow processes{folder.Path(), allProcesses};
  OfficeControl office{world.services, processes};
  FrameSetExam exam{world.services};

 private:
  void FormLoaded() override {}
  void FormChanged() override {}
  void TitleChanged() override {}
  void PostContentChanged() override {}
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
  const std::string registered = Registered();
  for (const char* part :
       {"\\Excel.Sheet.12]\n\"BrowserFlags\"=dword:00000000\n\"EditFlags\"=dword:00010000\n",
        "\\Word.Document.12]\n\"BrowserFlags\"=dword:00000024\n\"EditFlags\"=dword:00010000\n",
        "\\Zones\\3]\n\"2103\"=dword:00000000\n"}) {
    EXPECT_NE(registered.find(part), std::string::npos) << part << registered;
  }
  EXPECT_EQ(registered.find("PowerPoint"), std::string::npos);
}

/// Deliberate: as many bytes as the path has characters.
TEST_F(OfficeControlTest, StoresTheFirstHalfOfTheTrustedPath) {
  InstallOffice();
  world.services.applicationFolder = "/q\u00E9/x";
  office.settings.SetTrustedLocation(u"Excel", true);
  EXPECT_NE(Registered().find("\"AllowSubfolders\"=dword:00000001\n\"Path\"=hex(1):2f007100e9\n"),
            std::string::npos)
      << Registered();
  EXPECT_FALSE(Trusts("PowerPoint"));
}

TEST_F(OfficeControlTest, ComesBetweenTheStepsOfAPreviewAndOfTheEnd) {
  InstallOffice();
  const SleepingProcess word(folder / "WINWORD.EXE");
  ExamEditor editor(exam, *this, nullptr);
  exam.SetHostMode(1);
  world.dialogs.whileAsking = [&] {
    EXPECT_TRUE(Trusts("PowerPoint") && Trusts("Excel"));
    EXPECT_EQ(exam.previewPrefixes, 1);
    EXPECT_NE(exam.pageRenderer.renderOption, 0x0804);
    EXPECT_FALSE(fs::exists(folder / "app/TEMP"));
  };
  PreviewCommand(editor.questions, exam, &office, 0x0804, [](const fs::path&) {}).Run();
  EXPECT_EQ(world.dialogs.questions.size(), 1);
  EXPECT_TRUE(fs::exists(folder / "app/TEMP/ExamPreview/SEE.htm")) << "a No does not end the preview";

  WriteBytes(folder / "app/~TEMP/a/b", "attached");
  int removals = 0;
  files.onReplace = [&](const fs::path&) {
    ++removals;
    EXPECT_FALSE(fs::exists(folder / "app/~TEMP"));
  };
  RunCloseSequence(exam, &office);
  EXPECT_EQ(removals, 2);
  EXPECT_FALSE(Trusts("PowerPoint") || Trusts("Excel"));
}

}  // namespace
}  // namespace quorvantis::test
