// SPDX-License-Identifier: MIT
#include "desktop/main/commands/VersionCommands.h"

#include "editor/WorkCopies.h"
#include "host/PlanJson.h"
#include "model/document/ServicesWith.h"
#include "platform/StringTable.h"
#include "platform/UserDialogs.h"
#include "platform/digest/OpenSslDigest.h"
#include "platform/posix/PosixFolderGuard.h"
#include "platform/programs/PdfProgram.h"
#include "platform/programs/PopplerPdfText.h"
#include "platform/texts/VersionTexts.h"
#include "versions/folder/PartOfProgress.h"
#include "versions/make/TargetFolder.h"

#include <QCoreApplication>

#include <string>

namespace quorvantis {
namespace {

namespace fs = std::filesystem;

/// In the folder of work copies, which goes when the program ends.
fs::path VersionWorkFolder(const ExamServices& services) {
  return AttachmentWorkRoot(services.applicationFolder) / ".versions";
}

MadeVersions MakeThem(const ExamServices& services, int languageId, const VersionOrder& order,
                      Progress& progress) {
  const OpenSslDigest digest;
  const PlanJson form(digest);
  PdfProgram printer(PdfProgram::Find(), languageId, services.applicationFolder);
  PopplerPdfText pdfText;
  PosixFolderGuard guard;
  const std::string program = QCoreApplication::applicationVersion().toStdString();
  const VersionPorts ports{digest, form, &printer, &pdfText, &guard, program, languageId};
  const ExamServices own = ServicesWith(services, progress);
  return VersionMaker(own, VersionWorkFolder(services), ports).Make(order);
}

}  // namespace

void VersionCommands::MakeVersions() {
  if (!HasSaved()) return;
  const ExamServices& services = editor_.state.document.Services();
  auto* dialog = new VersionsDlg(editor_.state.document, editor_.state.FileName(), Services(),
                                 services.strings, &window_);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  QObject::connect(&check_, &CheckCommands::Judged, dialog, &VersionsDlg::OfferCheck);
  QObject::connect(dialog, &VersionsDlg::CheckWanted, &check_, &CheckCommands::Open);
  dialog->show();
  check_.Judge();
}

bool VersionCommands::HasSaved() {
  const ExamServices& services = editor_.state.document.Services();
  const auto isSaved = [&state = editor_.state] { return !state.IsUntitled() && !state.Modified(); };
  if (isSaved()) return true;
  if (!services.dialogs.AskYesNo(services.strings.Text(text_id::kVersionsSaveFirst))) return false;
  editor_.files.SaveExam();
  return isSaved();
}

VersionsServices VersionCommands::Services() const {
  const ExamServices& services = editor_.state.document.Services();
  VersionsServices program;
  program.make = [&services, languageId = languageId_](const VersionOrder& order, Progress& progress) {
    return MakeThem(services, languageId, order, progress);
  };
  program.problemWith = [&services, exam = editor_.state.FileName()](const fs::path& folder, bool replaces) {
    const OpenSslDigest digest;
    return ProblemWithFolder(folder, exam, replaces, PlanJson(digest), services.strings);
  };
  program.planIn = [](const fs::path& folder) {
    const OpenSslDigest digest;
    return PlanIn(folder, PlanJson(digest));
  };
  program.askYesNo = [&services](std::u16string_view question) {
    return services.dialogs.AskYesNo(question);
  };
  return program;
}

}  // namespace quorvantis
