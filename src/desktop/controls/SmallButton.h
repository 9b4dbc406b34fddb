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

/// A button that is just a picture, one for each state. It shows as much of the middle of its bitmap as fits.
class SmallButton : public QAbstractButton {
  Q_OBJECT

 public:
  /// In right-to-left windows the button shows `mirrored`.
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
