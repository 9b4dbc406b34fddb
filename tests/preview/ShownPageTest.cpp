// SPDX-License-Identifier: MIT
#include "PreviewTest.h"

namespace quorvantis::test {
namespace {

using ShownPage = PreviewTest;

TEST_F(ShownPage, IsWholeWhereTheFileIsCutAndFillsTheScreen) {
  const std::filesystem::path page = Compose("SEE.htm", "beginning 打印 ╴ and end");
  WriteBytes(page, "<HTML><BODY>begin");
  Preview(page);
  EXPECT_EQ(Evaluate("document.body.innerText.trim()").toString(), QString("beginning 打印 ╴ and end"));
  EXPECT_TRUE(Window().isVisible());
  EXPECT_EQ(Window().frameGeometry(), QGuiApplication::primaryScreen()->geometry());
}

}  // namespace
}  // namespace quorvantis::test
