// SPDX-License-Identifier: MIT
#include "shell/SizeLimits.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr PixelSize kSmallest{792, 646};
constexpr PixelSize kAtStart{870, 675};

PixelSize Within(PixelSize size, PixelSize room) {
  return {std::min(size.width, room.width), std::min(size.height, room.height)};
}

}  // namespace

SizeLimits LimitsOn(PixelSize screen, PixelSize room) {
  return {Within(kSmallest, room), screen, Within(kAtStart, room)};
}

}  // namespace quorvantis
