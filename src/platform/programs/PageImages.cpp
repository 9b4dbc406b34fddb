// SPDX-License-Identifier: MIT
#include "platform/programs/PageImages.h"

#include "platform/FolderEntries.h"

#include <algorithm>

namespace quorvantis {
namespace fs = std::filesystem;

std::vector<std::string> PageImageArguments(const fs::path& pdf, const fs::path& folder, int dotsPerInch,
                                            std::optional<int> mostPages) {
  std::vector<std::string> arguments{"-png", "-r", std::to_string(dotsPerInch)};
  if (mostPages) arguments.insert(arguments.end(), {"-l", std::to_string(*mostPages)});
  arguments.insert(arguments.end(), {pdf.string(), (folder / "page").string()});
  return arguments;
}

std::vector<fs::path> DrawnPages(const fs::path& folder) {
  std::vector<fs::path> pages = EntriesOf(folder);
  std::erase_if(pages, [](const fs::path& entry) { return entry.extension() != ".png"; });
  std::ranges::sort(pages);
  return pages;
}

}  // namespace quorvantis
