// SPDX-License-Identifier: MIT
#include "desktop/start/WindowArguments.h"

#include "desktop/controls/QtText.h"
#include "desktop/dialogs/DialogStyle.h"
#include "shell/language/LanguageId.h"

#include <QApplication>
#include <QCommandLineParser>

#include <algorithm>
#include <string_view>
#include <system_error>

namespace quorvantis {
namespace {

std::filesystem::path FullPath(const QString& path) {
  if (path.isEmpty()) return {};
  std::error_code error;
  const auto full = std::filesystem::absolute(QStringToPath(path), error);
  return error ? QStringToPath(path) : full.lexically_normal();
}

}  // namespace

std::unique_ptr<QCoreApplication> MakeApplication(int& argc, char** argv) {
  const auto onlyAsks = [](std::string_view argument) {
    return argument == "--help" || argument == "--help-all" || argument == "-h" || argument == "--version" ||
           argument == "-v";
  };
  if (std::any_of(argv, argv + argc, onlyAsks)) return std::make_unique<QCoreApplication>(argc, argv);
  auto application = std::make_unique<QApplication>(argc, argv);
  QApplication::setStyle(new DialogStyle);
  return application;
}

WindowArguments ParseWindowArguments(const QCoreApplication& application) {
  const QCommandLineOption folder("app-folder", "Keep settings and work folders in DIR.", "DIR");
  const QCommandLineOption debug("debug", "Write debug output to standard error.");
  const QCommandLineOption screenshot("screenshot", "Save a screenshot of the window to FILE and exit.",
                                      "FILE");
  const QCommandLineOption language(
      "language", "Use the language with this identifier, for example 0x0409, without asking.", "ID");
  QCommandLineParser parser;
  parser.setApplicationDescription("Quorvantis, an exam editor.");
  parser.addOptions({folder, debug, screenshot, language});
  parser.addHelpOption();
  parser.addVersionOption();
  parser.addPositionalArgument("FILE", "The exam to open.", "[FILE.exm]");
  parser.process(application);
  if (parser.positionalArguments().size() > 1) parser.showHelp(2);
  const std::optional<int> languageId = ParseLanguageId(parser.value(language).toStdString());
  if (parser.isSet(language) && !languageId) parser.showHelp(2);
  return {FullPath(parser.positionalArguments().value(0)), FullPath(parser.value(folder)),
          parser.value(screenshot), languageId, parser.isSet(debug)};
}

}  // namespace quorvantis
