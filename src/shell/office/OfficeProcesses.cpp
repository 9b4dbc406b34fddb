// SPDX-License-Identifier: MIT
#include "shell/office/OfficeProcesses.h"

#include "platform/DebugOutput.h"
#include "platform/StringTable.h"
#include "platform/UserDialogs.h"
#include "platform/texts/ProgramTexts.h"
#include "text/AsciiCase.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::u16string_view kOfficePrograms[] = {u"WINWORD.EXE", u"EXCEL.EXE", u"POWERPNT.EXE"};

/// Deliberately anywhere in the path, as users know it: a program in a folder "excel.exe" counts, too.
bool IsOfficeProgram(std::u16string_view module) {
  const std::u16string upper = AsciiUpper(module);
  return std::ranges::any_of(
      kOfficePrograms, [&](std::u16string_view name) { return upper.find(name) != std::u16string::npos; });
}

}  // namespace

void OfficeProcesses::EnumerateProcesses(const Visitor& visit) {
  for (const RunningProcess& process : processes_.Processes()) {
    if (!visit(process)) return;
  }
}

bool OfficeProcesses::IsOfficeRunning() {
  bool running = false;
  EnumerateProcesses([&](const RunningProcess& process) {
    running = running || IsOfficeProgram(process.module);
    return true;
  });
  return running;
}

void OfficeProcesses::AskCloseOffice() {
  if (!IsOfficeRunning()) return;
  if (!services_.dialogs.AskYesNo(services_.strings.Text(text_id::kCloseOffice))) return;
  EnumerateProcesses([&](const RunningProcess& process) {
    services_.debug.Line(u"KillWordExeProc");
    if (IsOfficeProgram(process.module)) processes_.Terminate(process);
    return true;
  });
}

}  // namespace quorvantis
