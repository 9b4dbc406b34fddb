// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/controls/Pictures.h"

#include <QAbstractButton>

namespace quorvantis {

/// The names of a small button's bitmaps, one for each state.
struct SmallButtonBitmaps {
  const char* up;
  const char* pressed;
  const char* focused;  ///< null: the button at rest with a frame around it
  const char* disabled;
};

/// A button that is nothing but a picture, another one in each state. It shows the middle of its bitmap, as
/// much as it has room for.
class SmallButton : public QAbstractButton {
  Q_OBJECT

 public:
  /// In windows that run from right to left the button shows `mirrored`.
  SmallButton(const Pictures& pictures, const SmallButtonBitmaps& bitmaps, const SmallButtonBitmaps& mirrored,
              QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  struct States {
    States(const Pictures& pictures, const SmallButtonBitmaps& bitmaps);
    QIcon up, pressed, focused, disabled;
  };
  const QIcon& Picture(const States& states) const;

  States states_;
  States mirrored_;
};

}  // namespace quorvantis
