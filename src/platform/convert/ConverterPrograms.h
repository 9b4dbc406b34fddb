// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace quorvantis {

/// The programs that convert attached files, by full path; the path is empty if one is not installed.
struct ConverterPrograms {
  QString office;     ///< soffice of LibreOffice
  QString pdfImages;  ///< pdftoppm of poppler
  QString mediaInfo;  ///< ffprobe
  QString media;      ///< ffmpeg

  /// Searches the folders of PATH.
  static ConverterPrograms Find();
};

}  // namespace quorvantis
