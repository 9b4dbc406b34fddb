// SPDX-License-Identifier: MIT
// Proves that the sources include one another only along the arrows between the folders of src/. The compiler
// alone does not: a relative path, or a header of the system, gets past the include roots.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace quorvantis::test {
namespace {

namespace fs = std::filesystem;
using Layers = std::map<std::string, std::set<std::string>>;

/// Takes "folder:folder;folder" lines apart.
Layers ParseLayers(std::istream&& lines) {
  Layers layers;
  for (std::string line; std::getline(lines, line);) {
    if (line.empty()) continue;
    const std::size_t colon = line.find(':');
    if (colon == std::string::npos) throw std::runtime_error("no layer: " + line);
    std::istringstream names(line.substr(colon + 1));
    std::set<std::string>& arrows = layers[line.substr(0, colon)];
    for (std::string name; std::getline(names, name, ';');) arrows.insert(name);
  }
  return layers;
}

Layers DeclaredLayers() {
  return ParseLayers(std::ifstream(QUORVANTIS_LAYERS_FILE));
}

/// Whether arrows lead from one folder to the other; to itself only by way of a cycle.
bool Reaches(const std::string& from, const std::string& to, const Layers& layers) {
  std::vector<std::string> open{from};
  std::set<std::string> reached;
  while (!open.empty()) {
    const std::string layer = open.back();
    open.pop_back();
    for (const std::string& next : layers.at(layer)) {
      if (reached.insert(next).second) open.push_back(next);
    }
  }
  return reached.count(to) != 0;
}

bool HasCycle(const Layers& layers) {
  return std::any_of(layers.begin(), layers.end(),
                     [&](const auto& layer) { return Reaches(layer.first, layer.first, layers); });
}

/// Folders that talk to the machine or to a user may use more than the standard library.
bool IsCore(const std::string& layer) {
  const bool talks = layer == "cli" || layer == "preview" || layer.starts_with("platform/") ||
                     (layer.starts_with("desktop/") && layer != "desktop/layout");
  return !talks;
}

/// What is wrong with a line of a file in `layer`, or nothing.
std::optional<std::string> FaultOfLine(std::string line, const std::string& layer, const Layers& layers) {
  line.erase(std::remove_if(line.begin(), line.end(), [](char c) { return c == ' ' || c == '\t'; }),
             line.end());
  const std::string directive = "#include";
  if (line.starts_with(directive) == false) return std::nullopt;
  line.erase(0, directive.size());
  const std::size_t end = line.find_first_of(line.rfind('<', 0) == 0 ? ">" : "\"", 1);
  if (end == std::string::npos) return "an include that cannot be read: " + line;
  const std::string header = line.substr(1, end - 1);
  if (line[0] == '<') {
    const bool standard = header.find_first_of("/.") == std::string::npos && header.rfind('Q', 0) != 0;
    return standard || !IsCore(layer) ? std::nullopt : std::optional("not the standard library: " + header);
  }
  const std::string folder = fs::path(header).parent_path().generic_string();
  if (folder == layer || Reaches(layer, folder, layers)) return std::nullopt;
  return "against the arrows: " + header;
}

TEST(IncludeGraph, HasNoCycle) {
  EXPECT_FALSE(HasCycle(DeclaredLayers()));
}

TEST(IncludeGraph, SourcesFollowTheArrows) {
  const Layers layers = DeclaredLayers();
  const fs::path sources = QUORVANTIS_SOURCE_DIR;
  int files = 0;
  for (const auto& entry : fs::recursive_directory_iterator(sources)) {
    const fs::path& file = entry.path();
    if (file.extension() != ".h" && file.extension() != ".cpp") continue;
    const std::string layer = file.lexically_relative(sources).parent_path().generic_string();
    // A build without the window declares no layers for it; their sources are then not part of the program.
    const bool ofTheWindow =
        layer.starts_with("desktop/") || layer == "preview" || layer == "platform/convert";
    if (ofTheWindow && layers.count(layer) == 0) continue;
    ++files;
    EXPECT_EQ(layers.count(layer), 1u) << file << " is in a folder without a layer";
    std::ifstream lines(file);
    std::string line;
    for (int number = 1; std::getline(lines, line); ++number) {
      const auto fault = FaultOfLine(line, layer, layers);
      if (fault) ADD_FAILURE() << file.string() << ":" << number << ": " << *fault;
    }
  }
  EXPECT_GE(files, 50) << sources;
}

TEST(IncludeGraph, FaultsAreFound) {
  const auto parse = [](const char* lines) { return ParseLayers(std::istringstream(lines)); };
  const Layers layers =
      parse("text:\nmodel:text\neditor:model\nplatform:\nplatform/posix:platform;text\ncli:editor\n");
  const auto check = [&](const char* layer, const char* line, bool good) {
    EXPECT_EQ(FaultOfLine(line, layer, layers).has_value(), !good) << layer << ": " << line;
  };
  check("editor", "#include \"text/Utf.h\"", true);  // by way of model
  check("editor", "#include \"cli/Console.h\"", false);
  check("text", "  #  include \"model/Exam.h\"", false);
  check("model", "#include \"../editor/Form.h\"", false);
  check("model", "#include \"Exam.h\"", false);
  check("platform/posix", "#include \"platform/Files.h\"", true);
  check("model", "#include <vector>", true);
  check("model", "#include <unistd.h>", false);
  check("model", "#include <QString>", false);
  check("model", "#include HEADER", false);
  check("platform/posix", "#include <sys/stat.h>", true);
  EXPECT_FALSE(HasCycle(layers));
  EXPECT_TRUE(HasCycle(parse("a:b\nb:c\nc:a\n")));
}

}  // namespace
}  // namespace quorvantis::test
