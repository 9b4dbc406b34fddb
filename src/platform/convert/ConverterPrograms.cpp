// SPDX-License-Identifier: MIT
#include "platform/convert/ConverterPrograms.h"

#include "platform/programs/ChildProgram.h"

#include <QFile>

namespace quorvantis {

ConverterPrograms ConverterPrograms::Find() {
  const auto find = [](const char* name) { return QFile::decodeName(FindProgram(name).c_str()); };
  return {find("soffice"), find("pdftoppm"), find("ffprobe"), find("ffmpeg")};
}

}  // namespace quorvantis
