// SPDX-License-Identifier: MIT
#pragma once

#include "editor/EditorView.h"

namespace quorvantis {

/// The view of an editor without a window. Enough for callers that deliver queued changes themselves.
class UnseenView : public EditorView {
 public:
  void FormLoaded() override {}
  void FormChanged() override {}
  void TitleChanged() override {}
  void PostContentChanged() override {}
};

}  // namespace quorvantis
