// SPDX-License-Identifier: MIT
#pragma once

#include "editor/EditorView.h"

namespace quorvantis::test {

/// The view of an editor that nobody looks at.
class UnseenView : public EditorView {
  void FormLoaded() override {}
  void FormChanged() override {}
  void TitleChanged() override {}
  void PostContentChanged() override {}
};

}  // namespace quorvantis::test
