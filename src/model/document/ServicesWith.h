// SPDX-License-Identifier: MIT
#pragma once

#include "model/document/ExamServices.h"

namespace quorvantis {

/// The same services with another progress, which must outlive them.
inline ExamServices ServicesWith(const ExamServices& services, Progress& progress) {
  return {services.applicationFolder,
          services.strings,
          services.dialogs,
          services.codePage,
          services.debug,
          services.files,
          progress,
          services.longAnswerFlags,
          services.ids,
          services.registry,
          services.pages};
}

}  // namespace quorvantis
