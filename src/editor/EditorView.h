// SPDX-License-Identifier: MIT
#pragma once

namespace quorvantis {

/// What the editor tells the window that shows it. The window then reads the values it needs from the editor;
/// none of these calls may run an editor command.
class EditorView {
 public:
  virtual ~EditorView() = default;

  /// Another question is shown: refill every field. FormChanged follows.
  virtual void FormLoaded() = 0;

  /// Something other than the typed text may have changed: kind, lists, captions, visibility, or a text that
  /// a command wrote. Leave fields alone that still hold the form's value.
  virtual void FormChanged() = 0;

  /// The window title may have changed.
  virtual void TitleChanged() = 0;

  /// A field reported a change: call EditorState::DeliverContentChanged once the current command has ended.
  virtual void PostContentChanged() = 0;
};

}  // namespace quorvantis
