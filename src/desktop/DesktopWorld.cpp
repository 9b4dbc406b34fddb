// SPDX-License-Identifier: MIT
#include "desktop/DesktopWorld.h"

#include "shell/CodePageChoice.h"

namespace quorvantis {

DesktopWorld::DesktopWorld(const std::filesystem::path& applicationFolder, bool debug)
    : debug_(debug || DebugAskedFor()),
      registry_(applicationFolder / kRegistryFile, files_),
      codePage_(ChooseCodePage(applicationFolder, kEnglish)),
      services_{applicationFolder, strings_,         dialogs_, codePage_, debug_, files_,
                progress_,         longAnswerFlags_, ids_,     registry_, pages_},
      office_(services_, processes_) {}

void DesktopWorld::SetWindow(QWidget* window) {
  dialogs_.SetParent(window);
  progress_.SetParent(window);
}

}  // namespace quorvantis
