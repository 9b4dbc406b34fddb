// SPDX-License-Identifier: MIT
#include "versions/verify/SameContent.h"

#include "examfile/ByteSource.h"
#include "text/PathText.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace quorvantis {
namespace {

std::vector<std::filesystem::path> Listed(const AttachmentList& paths) {
  std::vector<std::filesystem::path> listed;
  for (const std::u16string& path : paths) {
    if (!path.empty()) listed.push_back(TextToPath(path));
  }
  return listed;
}

}  // namespace

bool HaveSameContent(const std::filesystem::path& file, const std::filesystem::path& other) {
  ByteSource bytes(file);
  ByteSource others(other);
  if (bytes.IsOpen() != others.IsOpen() || bytes.Size() != others.Size()) return false;
  while (bytes.IsOpen() && bytes.Position() < bytes.Size()) {
    const std::string_view block = bytes.Take(ByteSource::kMaxTake);
    if (block.empty() || block != others.Take(ByteSource::kMaxTake)) return false;
  }
  return true;
}

bool HaveSameFiles(const AttachmentList& paths, const AttachmentList& others) {
  return std::ranges::equal(Listed(paths), Listed(others), HaveSameContent);
}

}  // namespace quorvantis
