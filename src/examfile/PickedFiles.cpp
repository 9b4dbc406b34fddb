// SPDX-License-Identifier: MIT
#include "examfile/PickedFiles.h"

namespace quorvantis {

void PickedFiles::Begin(int question, unsigned slot, const std::u16string& name) {
  place_ = {question, slot};
  isPicked_ = picks_(place_, name);
}

/// A damaged file may claim any size, so no room is made before there are bytes.
bool PickedFiles::WantsContent(std::int64_t size) {
  if (!isPicked_ || size > room_) return false;
  room_ -= size;
  return true;
}

}  // namespace quorvantis
