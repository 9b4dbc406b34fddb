// SPDX-License-Identifier: MIT
#include "desktop/layout/Layout.h"
#include "desktop/layout/SizeLimits.h"

#include <gtest/gtest.h>

#include <optional>
#include <tuple>
#include <utility>

namespace quorvantis {

void PrintTo(const PixelRect& rect, std::ostream* out) {
  *out << rect.x << ',' << rect.y << ' ' << rect.width << 'x' << rect.height;
}

namespace {

/// A window at its first size in which all buttons are enabled, with labels whose sizes are easy to add.
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

using Place = std::optional<PixelRect>;

TEST(Layout, GivesEachControlItsPlace) {
  const LayoutPlaces choice = Layout(Window());
  LayoutInput input = Window();
  input.enabled[2] = false;
  input.examListVisible = input.questionListVisible = true;
  input.client.width = 873;  // 70 % of the title's room are 548.1, of the text's 555.1
  const LayoutPlaces lists = Layout(input);
  input = Window();
  input.kind = QuestionKind::FillIn;
  const LayoutPlaces fillIn = Layout(input);
  input.kind = QuestionKind::Essay;
  const LayoutPlaces essay = Layout(input);
  input = Window();
  input.questionLabel.height = 31;  // everything below gives way by one pixel
  input.client.height = 340;
  const LayoutPlaces low = Layout(input);
  const std::pair<Place, Place> rows[] = {{choice.toolbar[0], {{10, 8, 90, 40}}},
                                          {choice.toolbar[8], {{730, 8, 90, 40}}},
                                          {lists.toolbar[2], {}},
                                          {lists.toolbar[3], {{190, 8, 90, 40}}},
                                          {choice.titleLabel, {{10, 72, 30, 16}}},
                                          {choice.title, {{45, 68, 715, 20}}},
                                          {choice.random, {{765, 68, 65, 20}}},
                                          {choice.examAttachments, {}},
                                          {lists.title, {{45, 68, 483, 20}}},
                                          {lists.random, {{533, 68, 65, 20}}},
                                          {lists.examAttachmentsLabel, {{603, 60, 60, 16}}},
                                          {lists.examAttachments, {{668, 58, 174, 40}}},
                                          {choice.questionArea, {{10, 105, 850, 560}}},
                                          {choice.questionLabel, {{25, 128, 55, 16}}},
                                          {choice.number, {{82, 128, 30, 20}}},
                                          {choice.kinds[3], {{417, 120, 90, 30}}},
                                          {choice.navigation[0], {{40, 158, 73, 28}}},
                                          {low.navigation[6], {{478, 159, 73, 28}}},
                                          {choice.text, {{40, 194, 790, 80}}},
                                          {choice.attachments, {}},
                                          {lists.text, {{40, 194, 555, 80}}},
                                          {lists.attachments, {{600, 194, 237, 80}}},
                                          {lists.oralToggle, {{600, 284, 120, 25}}},
                                          {choice.boxes[0], {{40, 318, 30, 20}}},
                                          {choice.options[4], {{80, 586, 760, 65}}},
                                          {low.options[0], {{80, 287, 760, -1}}},  // -7 / 5 goes towards zero
                                          {choice.answer, {}},
                                          {fillIn.answerLabel, {{40, 286, 22, 16}}},
                                          {fillIn.answer, {{40, 304, 790, 20}}},
                                          {fillIn.listSeparator, {{795, 329, 30, 20}}},
                                          {fillIn.options[0], {}},
                                          {essay.essayLabel, {{40, 286, 22, 16}}},
                                          {essay.essay, {{40, 304, 790, 349}}},
                                          {Mirrored({10, 8, 90, 40}, 870), {{770, 8, 90, 40}}}};
  for (const auto& [place, expected] : rows) EXPECT_EQ(place, expected);
}

TEST(SizeLimits, GiveWayToASmallScreen) {
  const auto check = [](PixelSize given, PixelSize expected) {
    EXPECT_EQ(std::pair(given.width, given.height), std::pair(expected.width, expected.height));
  };
  const SizeLimits large = LimitsOn({1920, 1080}, {1920, 1010});
  check(large.smallest, {792, 646});
  check(large.largest, {1920, 1080});
  check(large.atStart, {870, 675});
  const SizeLimits small = LimitsOn({1024, 600}, {1024, 530});
  check(small.smallest, {792, 530});
  check(small.largest, {1024, 600});
  check(small.atStart, {870, 530});
}

TEST(ScrollIn, HasBarsOnlyWhereControlsHaveNoRoom) {
  const std::pair<PixelSize, ScrolledView> rows[] = {
      {{792, 646}, {{792, 646}, {792, 646}}},                                          // no bar
      {{900, 800}, {{900, 800}, {900, 800}}}, {{791, 700}, {{792, 690}, {791, 690}}},  // across
      {{791, 650}, {{792, 646}, {781, 640}}},  // across, for which there must be one down
      {{900, 600}, {{890, 646}, {890, 600}}},  // down
      {{795, 600}, {{792, 646}, {785, 590}}},  // down, for which there must be one across
      {{640, 472}, {{792, 646}, {630, 462}}}};
  for (const auto& [client, expected] : rows) {
    const ScrolledView given = ScrollIn(client, 10);
    EXPECT_EQ(
        std::tuple(given.area.width, given.area.height, given.view.width, given.view.height),
        std::tuple(expected.area.width, expected.area.height, expected.view.width, expected.view.height))
        << client.width << 'x' << client.height;
  }
}

}  // namespace
}  // namespace quorvantis
