// SPDX-License-Identifier: MIT
#include "cli/options/CommandOptions.h"

#include "shell/language/LanguageId.h"

namespace quorvantis::cli {

void AddCommonOptions(CLI::App& app, CommonOptions& options) {
  app.add_option("--app-folder", options.appFolder,
                 "Folder for work files and settings (default: a private one, removed at the end)")
      ->type_name("DIR");
  const auto takeLanguage = [&options](const std::string& text) {
    options.language = ParseLanguageId(text);
    if (!options.language) throw CLI::ValidationError("--language", "not an identifier: " + text);
  };
  app.add_option_function<std::string>(
         "--language", takeLanguage,
         "Show texts in the language of this identifier (\"quorvantis-cli languages\" lists them)")
      ->type_name("ID");
  app.add_flag("--debug", options.debug, "Show debug output on standard error");
}

CLI::App* AddCommand(CLI::App& app, CommandContext& context, const char* name, const char* description) {
  CLI::App* command = app.add_subcommand(name, description);
  AddCommonOptions(*command, context.common);
  return command;
}

CLI::App& AddCommandGroup(CLI::App& app, CommandContext& context, const char* name, const char* description) {
  CLI::App* group = AddCommand(app, context, name, description);
  group->require_subcommand(1);
  return *group;
}

void AddPath(CLI::App& command, const char* name, std::filesystem::path& path, const char* description) {
  command.add_option(name, path, description)->required()->type_name("");
}

CLI::Option* AddText(CLI::App& command, const char* name, std::optional<std::string>& text,
                     const char* description, const char* type) {
  const auto take = [&text](const std::string& given) { text = given; };
  return command.add_option_function<std::string>(name, take, description)->type_name(type);
}

CLI::Validator IsDecimal() {
  const auto check = [](const std::string& text) {
    const bool isDecimal = !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
    return isDecimal ? std::string() : text + " is not a number";
  };
  return {check, "", "decimal"};
}

}  // namespace quorvantis::cli
