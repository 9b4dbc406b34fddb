// SPDX-License-Identifier: MIT
#include "preview/MissingProgram.h"

#include "preview/FileKind.h"

namespace quorvantis {

QString MissingProgram(const std::filesystem::path& file, const ConverterPrograms& programs,
                       bool hasFlashPlayer) {
  switch (KindOf(file)) {
    case FileKind::Document:
      if (programs.office.isEmpty() && ExtensionOf(file) != "pdf") return "LibreOffice";
      return programs.pdfImages.isEmpty() ? "poppler-utils" : QString();
    case FileKind::Media:
      return programs.media.isEmpty() || programs.mediaInfo.isEmpty() ? "ffmpeg" : QString();
    case FileKind::Flash:
      return hasFlashPlayer ? QString() : "Ruffle";
    default:
      return {};
  }
}

}  // namespace quorvantis
