// SPDX-License-Identifier: MIT
#include "host/ExamHost.h"

#include "shell/settings/CodePageChoice.h"

namespace quorvantis {

ExamHost::ExamHost(const std::filesystem::path& applicationFolder, int languageId, bool debug,
                   const Program& program)
    : codePage_(ChooseCodePage(applicationFolder, languageId)),
      debug_(debug || DebugAskedFor()),
      registry_(applicationFolder / kRegistryFile, files_),
      services_{applicationFolder,
                program.strings,
                program.dialogs,
                codePage_,
                debug_,
                files_,
                program.progress,
                program.longAnswerFlags,
                ids_,
                registry_,
                pages_},
      papers_(codePage_, documents_) {}

}  // namespace quorvantis
