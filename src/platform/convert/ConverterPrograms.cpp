// SPDX-License-Identifier: MIT
#include "platform/convert/ConverterPrograms.h"

#include <QStandardPaths>

namespace quorvantis {

ConverterPrograms ConverterPrograms::Find() {
  return {QStandardPaths::findExecutable("soffice"), QStandardPaths::findExecutable("pdftoppm"),
          QStandardPaths::findExecutable("ffprobe"), QStandardPaths::findExecutable("ffmpeg")};
}

}  // namespace quorvantis
