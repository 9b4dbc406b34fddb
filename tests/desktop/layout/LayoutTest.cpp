// SPDX-License-Identifier: MIT
#include "desktop/layout/Layout.h"
#include "desktop/layout/SizeLimits.h"

#include <gtest/gtest.h>

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

TEST(Layout, ToolbarClosesTheGapOfADisabledButton) {
  LayoutInput input = Window();
  LayoutPlaces places = Layout(input);
  EXPECT_EQ(places.toolbar[0], (PixelRect{10, 8, 90, 40}));
  EXPECT_EQ(places.toolbar[8], (PixelRect{730, 8, 90, 40}));
  input.enabled[2] = false;
  places = Layout(input);
  EXPECT_EQ(places.toolbar[2], std::nullopt);
  EXPECT_EQ(places.toolbar[3], (PixelRect{190, 8, 90, 40})) << "Save, without Import";
  EXPECT_EQ(places.toolbar[8]->x, 640);
}

TEST(Layout, TitleRowMakesRoomForTheExamList) {
  LayoutInput input = Window();  // a = 45, r = 65, v = 870 - 90 = 780
  LayoutPlaces places = Layout(input);
  EXPECT_EQ(places.titleLabel, (PixelRect{10, 72, 30, 16}));
  EXPECT_EQ(places.title, (PixelRect{45, 68, 715, 20}));
  EXPECT_EQ(places.random, (PixelRect{765, 68, 65, 20}));
  EXPECT_FALSE(places.examAttachments || places.examAttachmentsLabel);

  input.examListVisible = true;
  input.client.width = 873;  // v = 783: 70 % are 548.1, 30 % are 234.9
  places = Layout(input);
  EXPECT_EQ(places.title, (PixelRect{45, 68, 483, 20}));
  EXPECT_EQ(places.random, (PixelRect{533, 68, 65, 20}));
  EXPECT_EQ(places.examAttachmentsLabel, (PixelRect{603, 60, 60, 16}));
  EXPECT_EQ(places.examAttachments, (PixelRect{668, 58, 174, 40}));
}

TEST(Layout, RowsOfTheQuestionFollowItsLabel) {
  LayoutInput input = Window();
  LayoutPlaces places = Layout(input);
  EXPECT_EQ(places.questionArea, (PixelRect{10, 105, 850, 560}));
  EXPECT_EQ(places.questionLabel, (PixelRect{25, 128, 55, 16}));
  EXPECT_EQ(places.number, (PixelRect{82, 128, 30, 20}));
  EXPECT_EQ(places.kinds[0], (PixelRect{117, 120, 90, 30}));
  EXPECT_EQ(places.kinds[3], (PixelRect{417, 120, 90, 30}));
  EXPECT_EQ(places.navigation[0], (PixelRect{40, 158, 73, 28}));
  EXPECT_EQ(places.navigation[6], (PixelRect{478, 158, 73, 28}));
  EXPECT_EQ(places.text, (PixelRect{40, 194, 790, 80}));
  EXPECT_FALSE(places.attachments || places.oralToggle);

  input.questionLabel.height = 31;  // everything below gives way by one pixel
  EXPECT_EQ(Layout(input).navigation[0].y, 159);

  input = Window();
  input.questionListVisible = true;
  input.client.width = 873;  // u = 793: 70 % are 555.1, 30 % are 237.9
  places = Layout(input);
  EXPECT_EQ(places.text, (PixelRect{40, 194, 555, 80}));
  EXPECT_EQ(places.attachments, (PixelRect{600, 194, 237, 80}));
  EXPECT_EQ(places.oralToggle, (PixelRect{600, 284, 120, 25}));
}

TEST(Layout, AnswersFitTheKind) {
  LayoutInput input = Window();  // y2 = 286
  LayoutPlaces places = Layout(input);
  EXPECT_EQ(places.boxes[0], (PixelRect{40, 318, 30, 20})) << "s = 329 / 5 = 65";
  EXPECT_EQ(places.options[0], (PixelRect{80, 286, 760, 65}));
  EXPECT_EQ(places.boxes[4], (PixelRect{40, 618, 30, 20}));
  EXPECT_EQ(places.options[4], (PixelRect{80, 586, 760, 65}));
  EXPECT_FALSE(places.answer || places.answerLabel || places.listSeparator || places.essay ||
               places.essayLabel);
  input.client.height = 339;
  EXPECT_EQ(Layout(input).options[0]->height, -1) << "-7 / 5 goes towards zero";

  input = Window();
  input.kind = QuestionKind::FillIn;
  places = Layout(input);
  EXPECT_EQ(places.answerLabel, (PixelRect{40, 286, 22, 16}));
  EXPECT_EQ(places.answer, (PixelRect{40, 304, 790, 20}));
  EXPECT_EQ(places.listSeparator, (PixelRect{795, 329, 30, 20}));
  EXPECT_FALSE(places.boxes[0] || places.options[0] || places.essay);

  input.kind = QuestionKind::Essay;
  places = Layout(input);
  EXPECT_EQ(places.essayLabel, (PixelRect{40, 286, 22, 16}));
  EXPECT_EQ(places.essay, (PixelRect{40, 304, 790, 349}));

  for (const auto kind : {QuestionKind::Oral, static_cast<QuestionKind>(7)}) {
    input.kind = kind;
    places = Layout(input);
    EXPECT_FALSE(places.boxes[0] || places.options[0] || places.answer || places.essay);
  }
}

TEST(Layout, MirroringKeepsTheDistanceFromTheOtherEdge) {
  EXPECT_EQ(Mirrored({10, 8, 90, 40}, 870), (PixelRect{770, 8, 90, 40}));
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
