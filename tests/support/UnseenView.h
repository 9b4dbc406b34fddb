// SPDX-License-Identifier: MIT
#pragma once

#include "editor/EditorView.h"

namespace quorvantis::test {

/// The view of an editor without a window.
class UnseenView : public EditorView {
  void FormLoaded() override {}
  void FormChanged() override {}
  void TitleChanged() override {}
  void PostContentChanged() override {}
};

}  // namespace quorvantis::test
