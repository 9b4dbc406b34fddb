// SPDX-License-Identifier: MIT
#include "desktop/WindowTest.h"
#include "platform/posix/LinuxProcessTable.h"
#include "support/SleepingProcess.h"

namespace quorvantis::test {
namespace {

using OfficeWindow = WindowTest;

TEST_F(OfficeWindow, AsksAboutOfficeProgramsAtTheStartAndAtEachPreview) {
  LinuxProcessTable all;
  ProcessesBelow processes(folder.Path(), all);
  OfficeControl control(services, processes);
  SleepingProcess word(folder / "WINWORD.EXE");
  std::filesystem::create_directory(services.applicationFolder);
  const std::u16string locations = u"Software\\Microsoft\\Office\\12.0\\Excel\\Security\\Trusted Locations";
  world.registry.CreateKey(RegistryRoot::CurrentUser, locations);
  const auto trusts = [&] {
    return world.registry.OpenKey(RegistryRoot::CurrentUser, locations + u"\\LocationQuorvantis") != nullptr;
  };
  world.dialogs.whileAsking = [&] {
    const int previews = window->isVisible() ? 1 : 0;
    EXPECT_EQ(trusts(), previews == 1);
    EXPECT_EQ(exam.PathOnPages(u"/a.gif"), previews == 1 ? u"/a./a.gif" : u"/a.gif");
    EXPECT_NE(exam.pageRenderer.renderOption, 0x0409) << "before pages are written";
    EXPECT_FALSE(std::filesystem::exists(folder / "app/TEMP/ExamPreview/SEE.htm"));
  };
  office = &control;
  Open();
  EXPECT_EQ(world.dialogs.questions.size(), 1);
  EXPECT_TRUE(word.IsAlive());
  world.dialogs.yesNoAnswers = {true};
  exam.examAttachmentPaths[0] = u"/a.gif";
  Click("preview");
  EXPECT_EQ(world.dialogs.questions.size(), 2);
  EXPECT_TRUE(word.Ends());
  Click("preview");
  EXPECT_EQ(world.dialogs.questions.size(), 2);
  EXPECT_TRUE(trusts());
  window.reset();
  EXPECT_FALSE(trusts());
}

}  // namespace
}  // namespace quorvantis::test
