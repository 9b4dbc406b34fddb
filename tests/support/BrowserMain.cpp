// SPDX-License-Identifier: MIT
#include "preview/BrowserEngine.h"

#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  quorvantis::PrepareBrowserEngine();
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
