// SPDX-License-Identifier: MIT
#include "desktop/layout/SizeLimits.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr PixelSize kAtStart{870, 675};

PixelSize Within(PixelSize size, PixelSize room) {
  return {std::min(size.width, room.width), std::min(size.height, room.height)};
}

}  // namespace

SizeLimits LimitsOn(PixelSize screen, PixelSize room) {
  return {Within(kSmallestClient, room), screen, Within(kAtStart, room)};
}

ScrolledView ScrollIn(PixelSize client, int bar) {
  PixelSize view = client;
  const bool low = client.height < kSmallestClient.height;
  const bool narrow = client.width - (low ? bar : 0) < kSmallestClient.width;
  if (narrow) view.height -= bar;
  if (view.height < kSmallestClient.height) view.width -= bar;  // perhaps only because of the other bar
  return {{std::max(view.width, kSmallestClient.width), std::max(view.height, kSmallestClient.height)}, view};
}

}  // namespace quorvantis
