// SPDX-License-Identifier: MIT
#include "exchange/form/ExchangeFiles.h"

#include "exchange/form/ExchangeLimits.h"
#include "model/ExamFields.h"
#include "platform/WholeFile.h"
#include "platform/texts/ExchangeTexts.h"

#include <fstream>

namespace quorvantis {

std::optional<ExchangedFile> ExchangeFiles::Keep(std::u16string_view name, std::string_view bytes) {
  std::u16string shown = FileNameOf(name);
  const std::size_t limit = FieldNamed(ExamFieldName::AttachmentName).Units(FileVersion::Current) - 1;
  if (shown.empty()) shown = u"file";
  if (shown.size() > limit) shown.erase(0, shown.size() - limit);  // its end tells what it is
  if (bytes.size() > kMaxExchangedFile || total_ + bytes.size() > kMaxUnpackedFiles) {
    notes_.Tell(text_id::kExchangeFileTooLarge, {shown});
    return std::nullopt;
  }
  const std::filesystem::path path = names_.PathFor(shown);
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (!file.good()) {
    std::error_code ignored;
    std::filesystem::remove(path, ignored);
    notes_.Tell(text_id::kExchangeFileNotKept, {shown});
    return std::nullopt;
  }
  total_ += bytes.size();
  return ExchangedFile{std::move(shown), path};
}

std::string BytesOf(const ExchangedFile& file) {
  return ReadWholeFile(file.path, kMaxExchangedFile).value_or(std::string());
}

}  // namespace quorvantis
