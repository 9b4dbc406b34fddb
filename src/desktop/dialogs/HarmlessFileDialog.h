// SPDX-License-Identifier: MIT
#pragma once

#include <QFileDialog>
#include <QObject>

namespace quorvantis {

/// Keeps users from deleting and moving files in a file dialog of Qt: its Delete key removes a whole folder
/// after one question. Names can still be typed; in a dialog that saves, folders can still be created.
void MakeHarmless(QFileDialog& dialog);

/// Does the same to every file dialog that the application shows, such as those of the print dialog.
class HarmlessFileDialogs : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace quorvantis
