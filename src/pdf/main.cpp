// SPDX-License-Identifier: MIT
// Makes PDF files of exams. Started by other programs, see platform/programs/PdfProgram.h.
#include "pdf/PaperWork.h"
#include "preview/BrowserEngine.h"

#include <QApplication>
#include <QTimer>

#include <clocale>
#include <iostream>
#include <span>
#include <string>
#include <vector>

namespace {

constexpr int kWrongUsage = 2;

int Refuse() {
  std::cerr << "quorvantis-pdf: is started by other programs; use \"quorvantis-cli pdf\"\n";
  return kWrongUsage;
}

}  // namespace

int main(int argc, char** argv) {
  const std::span<char*> given(argv, static_cast<std::size_t>(argc));
  const std::vector<std::string> arguments(given.begin() + 1, given.end());
  std::optional<quorvantis::PaperOrder> order = quorvantis::PaperOrderOf(arguments);
  if (!order) return Refuse();
  qputenv("QT_QPA_PLATFORM", "offscreen");
  quorvantis::PrepareBrowserEngine();
  const QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  std::setlocale(LC_NUMERIC, "C");  // NOLINT(concurrency-mt-unsafe): there is no other thread yet
  quorvantis::PaperWork work(std::move(*order));
  QTimer::singleShot(0, &work, [&work] { work.Begin(); });
  return QApplication::exec();
}
