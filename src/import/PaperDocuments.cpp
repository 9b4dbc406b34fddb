// SPDX-License-Identifier: MIT
#include "import/PaperDocuments.h"

#include "editor/ExamFileCommands.h"

namespace quorvantis {

WordReadOutcome PaperDocuments::Open(const std::filesystem::path& file, const WordReadOptions& options) {
  const std::u16string extension = LowerExtension(file);
  const bool isText = extension == u"txt" || extension == u"md";
  return isText ? text_.Open(file, options) : word_.Open(file, options);
}

}  // namespace quorvantis
