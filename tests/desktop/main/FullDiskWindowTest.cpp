// SPDX-License-Identifier: MIT
#include "desktop/WindowTest.h"
#include "recovery/RecoveredExam.h"
#include "support/TinyDisk.h"

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

class FullDiskWindow : public WindowTest {
 protected:
  void SetUp() override {
    if (!home.Works()) GTEST_SKIP() << "no disk can be mounted here";
    services.applicationFolder = home / "app";
    fs::create_directory(services.applicationFolder);
  }
  bool IsTold() { return Control("recoveryFails").isVisible(); }

  TinyDisk home{4096};
};

TEST_F(FullDiskWindow, ARecoveryCopyThatCannotBeWrittenIsToldAsLongAsItCannot) {
  Open();
  const auto kept = [&] {
    const auto copies = FindRecoveryCopies(services).copies;
    return copies.empty() ? u"" : copies[0].title;
  };
  Type("title", "a");
  ASSERT_TRUE(QTest::qWaitFor([&] { return kept() == u"a"; }));
  home.Leave(0);
  Type("title", "b");
  ASSERT_TRUE(QTest::qWaitFor([&] { return IsTold(); }));
  EXPECT_EQ(kept(), u"a");
  EXPECT_EQ(Line("title").text(), "ab") << "and has kept nobody from typing";
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_TRUE(Control("recoveryFails").toolTip().contains("recovery"));
  EXPECT_TRUE(window->childAt(Control("recoveryFails").geometry().center()) == &Control("recoveryFails"));
  home.Leave(1000);
  ASSERT_TRUE(QTest::qWaitFor([&] { return !IsTold(); }));
  EXPECT_EQ(kept(), u"ab");
}

}  // namespace
}  // namespace quorvantis::test
