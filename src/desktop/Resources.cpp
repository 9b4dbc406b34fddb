// SPDX-License-Identifier: MIT
#include "desktop/Resources.h"

// A static library does not make its pictures known by itself. The macro declares a function where it stands,
// which must be outside of any namespace.
static void InitializeDesktopResources() {
  Q_INIT_RESOURCE(desktop);
}

namespace quorvantis {

QIcon Picture(const QString& name) {
  InitializeDesktopResources();
  return QIcon(":/" + name);
}

}  // namespace quorvantis
