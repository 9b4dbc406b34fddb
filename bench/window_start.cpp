// SPDX-License-Identifier: MIT
// The time from the start of the process to the first painted frame of the main window, compared with a Qt
// window with one label. Measured from outside, on a display with a black background and no window manager,
// such as Xvfb.
#include "BenchArguments.h"
#include "RatioReporter.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QTemporaryDir>
#include <QThread>

namespace {

using namespace quorvantis;

constexpr int kLongest = 20000;  // milliseconds

/// Windows appear in the top left corner; they have no background until they are painted.
bool IsCornerBlack() {
  const QImage corner = QGuiApplication::primaryScreen()->grabWindow(0, 0, 0, 4, 4).toImage();
  return (corner.pixel(2, 2) & RGB_MASK) == 0;
}

bool WaitUntilCornerIs(bool black) {
  QElapsedTimer clock;
  clock.start();
  while (IsCornerBlack() != black) {
    if (clock.elapsed() > kLongest) return false;
    QThread::usleep(500);
  }
  return true;
}

void Start(benchmark::State& state, const QString& program, const QStringList& arguments) {
  for (auto _ : state) {
    QElapsedTimer clock;
    clock.start();
    QProcess process;
    process.start(program, arguments);
    if (!WaitUntilCornerIs(false)) state.SkipWithError("no window came");
    state.SetIterationTime(static_cast<double>(clock.nsecsElapsed()) / 1e9);
    process.terminate();
    process.waitForFinished();
    if (!WaitUntilCornerIs(true)) state.SkipWithError("the screen is not black without a window");
  }
}

void Register(const char* name, const QString& program, const QStringList& arguments) {
  benchmark::RegisterBenchmark(name, Start, program, arguments)
      ->UseManualTime()
      ->Iterations(1)
      ->Repetitions(15)
      ->Unit(benchmark::kMillisecond);
}

}  // namespace

int main(int argumentCount, char** arguments) {
  const auto program = bench::TakeArgument(argumentCount, arguments, "--program=").value_or("quorvantis");
  const auto peer = bench::TakeArgument(argumentCount, arguments, "--peer=").value_or("bench_one_label");
  const QGuiApplication application(argumentCount, arguments);
  const QTemporaryDir folder;
  Register("label", QString::fromStdString(peer), {});
  Register("window", QString::fromStdString(program),
           {"--app-folder", folder.path(), "--language", "0x0409"});
  bench::RunComparisons(argumentCount, arguments,
                        {{"window on the screen / Qt window with a label", "window", "label", 2.0}});
  return 0;
}
