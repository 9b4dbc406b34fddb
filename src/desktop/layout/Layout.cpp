// SPDX-License-Identifier: MIT
#include "desktop/layout/Layout.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr PixelSize kLargeButton{90, 40};
constexpr PixelSize kKindButton{90, 30};
constexpr PixelSize kSmallButton{73, 28};
constexpr PixelSize kSmallControl{30, 20};  // number label, answer boxes, list separator
constexpr int kLineHeight = 20;
constexpr int kTextHeight = 80;
constexpr int kTextLeft = 40;
constexpr int kTextMargins = 80;  // left and right of the question's text together

constexpr PixelRect At(int x, int y, PixelSize size) {
  return {x, y, size.width, size.height};
}

constexpr int Percent(int width, int percent) {
  return width * percent / 100;
}

void PlaceToolbar(const LayoutInput& input, LayoutPlaces& places) {
  int x = 10;
  for (std::size_t i = 0; i < kToolbarButtons; ++i) {
    if (!input.enabled[i]) continue;
    places.toolbar[i] = At(x, 8, kLargeButton);
    x += kLargeButton.width;
  }
}

void PlaceTitleRow(const LayoutInput& input, LayoutPlaces& places) {
  places.titleLabel = At(10, 72, input.titleLabel);
  const int left = input.titleLabel.width + 15;
  const int room = input.client.width - 2 * left;
  const int randomWidth = input.randomTextWidth + 15;
  const int titleRoom = input.examListVisible ? Percent(room, 70) : room;
  places.title = {left, 68, titleRoom - randomWidth, kLineHeight};
  places.random = {left + places.title.width + 5, 68, randomWidth, kLineHeight};
  if (!input.examListVisible) return;
  const PixelSize label = input.examAttachmentsLabel;
  const PixelRect labelPlace = At(places.random.x + randomWidth + 5, 60, label);
  places.examAttachmentsLabel = labelPlace;
  places.examAttachments = PixelRect{labelPlace.x + label.width + 5, 58, Percent(room, 30) - label.width, 40};
}

void PlaceKindRow(const LayoutInput& input, LayoutPlaces& places) {
  places.questionLabel = At(25, 128, input.questionLabel);
  places.number = At(input.questionLabel.width + 27, 128, kSmallControl);
  int x = places.number.x + places.number.width + 5;
  for (PixelRect& kind : places.kinds) {
    kind = At(x, 120, kKindButton);
    x += 100;
  }
}

void PlaceNavigation(int y, LayoutPlaces& places) {
  int x = kTextLeft;
  for (PixelRect& button : places.navigation) {
    button = At(x, y, kSmallButton);
    x += kSmallButton.width;
  }
}

void PlaceText(const LayoutInput& input, int y, LayoutPlaces& places) {
  const int room = input.client.width - kTextMargins;
  const int width = input.questionListVisible ? Percent(room, 70) : room;
  places.text = {kTextLeft, y, width, kTextHeight};
  if (!input.questionListVisible) return;
  const int x = width + 45;
  places.attachments = PixelRect{x, y, Percent(room, 30), kTextHeight};
  places.oralToggle = At(x, y + 90, input.oralToggle);
}

void PlaceOptions(PixelSize client, int y, LayoutPlaces& places) {
  const int height = (client.height - y - 60) / static_cast<int>(kOptionCount);
  for (std::size_t i = 0; i < kOptionCount; ++i) {
    places.boxes[i] = At(40, y + height / 2, kSmallControl);
    places.options[i] = PixelRect{80, y, client.width - 110, height};
    y += height + 10;
  }
}

void PlaceAnswerLine(const LayoutInput& input, int y, LayoutPlaces& places) {
  places.answerLabel = At(kTextLeft, y, input.answerLabel);
  const int lineTop = y + input.answerLabel.height + 2;
  places.answer = PixelRect{kTextLeft, lineTop, input.client.width - kTextMargins, kLineHeight};
  places.listSeparator = At(input.client.width - 75, lineTop + 25, kSmallControl);
}

void PlaceEssay(const LayoutInput& input, int y, LayoutPlaces& places) {
  places.essayLabel = At(kTextLeft, y, input.essayLabel);
  places.essay = PixelRect{kTextLeft, y + input.essayLabel.height + 2, input.client.width - kTextMargins,
                           input.client.height - y - 40};
}

void PlaceAnswers(const LayoutInput& input, int y, LayoutPlaces& places) {
  const AnswerParts parts = AnswerOf(input.kind);
  if (parts.options) PlaceOptions(input.client, y, places);
  if (parts.fillIn) PlaceAnswerLine(input, y, places);
  if (parts.essay) PlaceEssay(input, y, places);
}

}  // namespace

LayoutPlaces Layout(const LayoutInput& input) {
  LayoutPlaces places;
  PlaceToolbar(input, places);
  PlaceTitleRow(input, places);
  places.questionArea = {10, 105, input.client.width - 20, input.client.height - 115};
  PlaceKindRow(input, places);
  const int kindRowHeight = std::max({input.questionLabel.height, kSmallControl.height, 30});
  PlaceNavigation(kindRowHeight + 128, places);
  PlaceText(input, kindRowHeight + 164, places);
  PlaceAnswers(input, kindRowHeight + 256, places);
  return places;
}

PixelRect NoticePlace(const LayoutPlaces& places) {
  constexpr int kNoticeMargin = 10;
  const PixelRect &kind = places.kinds.back(), &last = places.navigation.back();
  const int left = std::max(kind.x + kind.width, last.x + last.width) + kNoticeMargin;
  const int right = places.questionArea.x + places.questionArea.width - kNoticeMargin;
  return {left, kind.y, std::max(right - left, 0), last.y + last.height - kind.y};
}

PixelRect Mirrored(const PixelRect& place, int clientWidth) {
  return {clientWidth - place.x - place.width, place.y, place.width, place.height};
}

}  // namespace quorvantis
