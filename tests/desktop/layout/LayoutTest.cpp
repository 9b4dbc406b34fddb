// SPDX-License-Identifier: MIT
#include "desktop/layout/Layout.h"
#include "desktop/layout/SizeLimits.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <optional>
#include <sstream>
#include <string>
#include <utility>

namespace quorvantis {

namespace {

/// A window at its initial size with all buttons enabled and labels whose sizes are easy to add up.
LayoutInput Window() {
  LayoutInput input;
  input.client = {870, 675};
  input.enabled.fill(true);
  input.titleLabel = {30, 16};
  input.randomTextWidth = 50;
  input.examAttachmentsLabel = {60, 16};
  input.questionLabel = {55, 16};
  input.oralToggle = {120, 25};
  input.answerLabel = input.essayLabel = {22, 16};
  return input;
}

void Tell(std::ostream& out, const std::optional<PixelRect>& place) {
  if (place) out << "  " << place->x << ',' << place->y << ' ' << place->width << 'x' << place->height;
  if (!place) out << "  -";
}
template <class Place, std::size_t kSize>
void Tell(std::ostream& out, const std::array<Place, kSize>& row) {
  for (const Place& place : row) Tell(out, place);
}

/// All places by name, as in places.txt.
std::string Told(const char* title, const LayoutPlaces& places) {
  std::ostringstream out;
  out << "# " << title << '\n';
  const auto tell = [&](const char* name, const auto& place) { Tell(out << name, place), out << '\n'; };
  tell("toolbar", places.toolbar);
  tell("title", std::array{places.titleLabel, places.title, places.random});
  tell("exam list", std::array{places.examAttachmentsLabel, places.examAttachments});
  tell("question", std::array{places.questionArea, places.questionLabel, places.number});
  tell("kinds", places.kinds);
  tell("navigation", places.navigation);
  tell("text", std::array<std::optional<PixelRect>, 3>{places.text, places.attachments, places.oralToggle});
  tell("boxes", places.boxes);
  tell("options", places.options);
  tell("answer", std::array{places.answerLabel, places.answer, places.listSeparator});
  tell("essay", std::array{places.essayLabel, places.essay});
  return out.str();
}

TEST(Layout, GivesEachControlItsPlace) {
  std::string told = Told("choice, and no files", Layout(Window()));
  LayoutInput input = Window();
  input.enabled[2] = false;
  input.examListVisible = input.questionListVisible = true;
  input.client.width = 873;  // 70 % of the title's width is 548.1, of the text's 555.1
  told += Told("with files, without Import", Layout(input));
  input = Window();
  for (const int kind : {1, 2, 3, 7}) {
    input.kind = static_cast<QuestionKind>(kind);
    told += Told(("kind " + std::to_string(kind)).c_str(), Layout(input));
  }
  input = Window();
  input.questionLabel.height = 31;  // everything below moves by one pixel
  input.client.height = 340;        // -7 / 5 rounds towards zero
  told += Told("a large font in a low window", Layout(input));
  const char* const golden = QUORVANTIS_PROJECT "/tests/desktop/layout/places.txt";
  const char* const update = std::getenv("QV_UPDATE_GOLDEN");  // NOLINT(concurrency-mt-unsafe)
  if (update != nullptr) test::WriteBytes(golden, told);
  EXPECT_EQ(told, test::ReadBytes(golden));
  EXPECT_EQ(Mirrored({10, 8, 90, 40}, 870), (PixelRect{770, 8, 90, 40}));
}

TEST(SizeLimits, GiveWayToASmallScreen) {
  const auto check = [](PixelSize given, PixelSize expected) {
    EXPECT_EQ(std::pair(given.width, given.height), std::pair(expected.width, expected.height));
  };
  const SizeLimits small = LimitsOn({1024, 600}, {1024, 530});
  check(small.smallest, {792, 530});
  check(small.largest, {1024, 600});
  check(small.atStart, {870, 530});
}

}  // namespace
}  // namespace quorvantis
