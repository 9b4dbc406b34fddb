// SPDX-License-Identifier: MIT
// A Qt window with one label, to compare the start of the main window with.
#include <QApplication>
#include <QLabel>

int main(int argumentCount, char** arguments) {
  const QApplication application(argumentCount, arguments);
  QLabel label("Quorvantis");
  label.resize(870, 675);
  label.show();
  return QApplication::exec();
}
