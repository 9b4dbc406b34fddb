// SPDX-License-Identifier: MIT
// Converting programs that hang: the rest goes on, and nothing is left of them when the preview has gone.
#include "AttachmentFiles.h"
#include "PreviewTest.h"
#include "support/Processes.h"

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;

class HangingConverterTest : public PreviewTest {
 protected:
  /// A program in the place of `program` that hangs, with a child, on files that have "hang" in their name.
  QString Hanging(const QString& program) {
    const fs::path script = folder / QString(program).replace('/', '-').toStdString();
    WriteBytes(script,
               "#!/bin/sh\nfor last; do :; done\ncase \"$* $(readlink \"$last\")\" in *hang*)\n"
               "sleep 1000 & echo $! >> '" +
                   marks.string() + "'; wait;; esac\nexec " + program.toStdString() + " \"$@\"\n");
    fs::permissions(script, fs::perms::owner_all);
    return script.c_str();
  }

  /// The children of the programs that hang.
  std::vector<pid_t> Children() const {
    std::ifstream in(marks);
    return {std::istream_iterator<pid_t>(in), {}};
  }

  const fs::path marks = folder / "children";
};

TEST_F(HangingConverterTest, HoldsNothingUpAndEndsWithThePreview) {
  if (programs.office.isEmpty() || programs.media.isEmpty()) GTEST_SKIP() << "no LibreOffice or ffmpeg";
  programs.office = Hanging(programs.office);
  programs.media = Hanging(programs.media);
  Attach("hang.doc", RichText("hanging"));
  Attach("good.doc", RichText("good"));
  ASSERT_TRUE(MakeOldFilm(app / "~TEMP/home/hang.avi"));
  ASSERT_TRUE(MakeOldFilm(app / "~TEMP/home/good.mkv"));
  qputenv("TMPDIR", (folder / "tmp").c_str());
  fs::create_directories(folder / "tmp");
  Preview(Compose("SEE.htm", ItemOf("~TEMP/home/hang.doc") + ItemOf("~TEMP/home/good.doc") +
                                 ItemOf("~TEMP/home/hang.avi") + ItemOf("~TEMP/home/good.mkv")));
  qunsetenv("TMPDIR");
  EXPECT_TRUE(WaitFor([&] { return Children().size() == 2; }));
  EXPECT_TRUE(Becomes("window.frames[1].document.images.length > 0"));
  EXPECT_TRUE(Becomes("document.querySelectorAll('video')[1].readyState > 0"));

  Window().Leave();
  EXPECT_TRUE(WaitFor([&] { return !Window().isVisible(); }));
  for (const pid_t child : Children()) EXPECT_FALSE(IsRunning(child)) << child;
  window.reset();
  windows.reset();
  EXPECT_TRUE(fs::is_empty(folder / "tmp"));
}

}  // namespace
}  // namespace quorvantis::test
