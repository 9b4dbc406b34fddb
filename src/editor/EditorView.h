// SPDX-License-Identifier: MIT
#pragma once

namespace quorvantis {

/// What the editor tells the window that shows it. The window then takes the values it needs from the editor;
/// none of these calls may run an editor command.
class EditorView {
 public:
  virtual ~EditorView() = default;

  /// Another question is shown: fill every field anew and forget what could be undone in it. FormChanged
  /// follows.
  virtual void FormLoaded() = 0;

  /// Something beside the typed texts may have changed: kind, lists, captions, what is visible, or a text
  /// that a command wrote. Fields that still hold the form's value are to be left alone.
  virtual void FormChanged() = 0;

  /// The window title may have changed.
  virtual void TitleChanged() = 0;

  /// A field reported a change: call EditorState::DeliverContentChanged once the command in hand has ended.
  virtual void PostContentChanged() = 0;
};

}  // namespace quorvantis
