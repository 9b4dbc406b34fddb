// SPDX-License-Identifier: MIT
// A Qt window with one label, the peer of the main window's start.
#include <QApplication>
#include <QLabel>

int main(int argumentCount, char** arguments) {
  const QApplication application(argumentCount, arguments);
  QLabel label("Quorvantis");
  label.resize(870, 675);
  label.show();
  return QApplication::exec();
}
