// SPDX-License-Identifier: MIT
#include "platform/convert/ConverterPrograms.h"

#include "platform/convert/ProgramRun.h"
#include "platform/programs/ChildProgram.h"
#include "platform/programs/OfficeConverter.h"

namespace quorvantis {

ConverterPrograms ConverterPrograms::Find() {
  const OfficePrograms found = OfficePrograms::Find();
  return {FileArgument(found.office), FileArgument(found.pdfImages), FileArgument(FindProgram("ffprobe")),
          FileArgument(FindProgram("ffmpeg"))};
}

}  // namespace quorvantis
