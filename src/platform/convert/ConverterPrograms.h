// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace quorvantis {

/// The programs that convert attached files, by full path; an empty one is not installed.
struct ConverterPrograms {
  QString office;     ///< soffice of LibreOffice
  QString pdfImages;  ///< pdftoppm of poppler
  QString mediaInfo;  ///< ffprobe
  QString media;      ///< ffmpeg

  /// Looks in the folders of PATH.
  static ConverterPrograms Find();
};

}  // namespace quorvantis
