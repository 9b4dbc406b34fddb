// SPDX-License-Identifier: MIT
#pragma once

#include "model/LongAnswerFlags.h"
#include "model/document/ExamServices.h"
#include "taking/CollectedMessages.h"

#include <filesystem>

namespace quorvantis {

/// The same services for a second document: it has a folder of its own, says nothing to the user, and the
/// long-answer flags of the exam being edited stay as they are. All must outlive the result.
inline ExamServices PrivateServices(const ExamServices& services, const std::filesystem::path& folder,
                                    CollectedMessages& messages, LongAnswerFlags& flags) {
  return {folder,         services.strings,  messages,          services.codePage,
          services.debug, services.files,    services.progress, flags,
          services.ids,   services.registry, services.pages};
}

}  // namespace quorvantis
