// SPDX-License-Identifier: MIT
#pragma once

#include "editor/EditorView.h"

namespace quorvantis {

/// The view of an editor that nobody looks at. Who delivers queued changes himself needs no more.
class UnseenView : public EditorView {
 public:
  void FormLoaded() override {}
  void FormChanged() override {}
  void TitleChanged() override {}
  void PostContentChanged() override {}
};

}  // namespace quorvantis
