// SPDX-License-Identifier: MIT
#include "cli/versions/VersionsSubcommands.h"

#include "cli/console/CommandError.h"
#include "cli/options/CommandOptions.h"
#include "cli/options/SeedOption.h"
#include "cli/options/Version.h"
#include "cli/session/ExamSession.h"
#include "cli/versions/VersionOptions.h"
#include "host/PlanJson.h"
#include "platform/digest/OpenSslDigest.h"
#include "platform/posix/PosixFolderGuard.h"
#include "platform/programs/PdfProgram.h"
#include "platform/programs/PopplerPdfText.h"
#include "platform/texts/VersionTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"
#include "text/PathText.h"
#include "text/Utf.h"
#include "versions/make/TargetFolder.h"
#include "versions/make/VersionMaker.h"
#include "versions/verify/VersionVerifier.h"

#include <ostream>

namespace quorvantis::cli {
namespace {

namespace fs = std::filesystem;

/// The arguments of `versions verify`.
struct VerifyRequest {
  fs::path folder;
  fs::path source;  ///< the exam; empty for where the plan says it is
};

constexpr const char* kVersionWork = "versions-work";

/// What versions need on this machine.
struct VersionTools {
  explicit VersionTools(const CommonOptions& options)
      : printer(PdfProgram::Find(), options.language.value_or(0), options.appFolder),
        ports{digest, form, &printer, &pdfText, &guard, kVersion, options.language.value_or(0)} {}

  OpenSslDigest digest;
  PlanJson form{digest};
  PdfProgram printer;
  PopplerPdfText pdfText;
  PosixFolderGuard guard;
  VersionPorts ports;
};

/// A question or option that is to keep its place must be there: who mistypes it would not notice.
void RequireParts(ExamSession& session, const fs::path& exam, const TeacherPins& pins) {
  if (pins == TeacherPins()) return;
  session.Load(exam);
  session.exam.CountQuestions();
  const auto isThere = [&](int question) { return question <= session.exam.questionCount; };
  for (const int question : pins.questions) {
    if (!isThere(question)) throw CommandError("--keep: there is no question " + std::to_string(question));
  }
  for (const OptionOfQuestion& part : pins.options) {
    const char letter = "ABCDE"[part.option];
    if (!isThere(part.question) || session.exam.Question(part.question).options[part.option].empty())
      throw CommandError("--keep: there is no option " + std::to_string(part.question) + letter);
  }
}

std::u16string CountText(std::size_t count) {
  return FormatInteger(static_cast<std::int64_t>(count));
}

void MakeVersions(Console& console, const CommonOptions& options, MakeVersionsRequest request) {
  ExamSession::RequireReadable(request.exam);
  ExamSession session(console, options);
  request.request.seed = request.seed ? *request.seed : RandomSeed();
  RequireParts(session, request.exam, request.request.pins);
  const fs::path exam = fs::absolute(request.exam).lexically_normal();
  const fs::path folder =
      request.folder.empty() ? UsualVersionFolder(exam) : fs::absolute(request.folder).lexically_normal();
  VersionTools tools(options);
  if (!request.printsSheets) tools.ports.printer = nullptr;
  const VersionMaker maker(session.services, session.services.applicationFolder / kVersionWork, tools.ports);
  const MadeVersions made = maker.Make({exam, folder, request.request, request.replaces});
  if (!made.problem.empty())
    throw CommandError(Utf16ToUtf8(made.problem), made.isCancelled ? kCommandInterrupted : kCommandFailed);
  const std::u16string seed = Utf8ToUtf16(std::to_string(request.request.seed));
  const std::u16string done = FillMessage(
      session.services.strings.Text(text_id::kVersionsMade),
      {CountText(made.record.plan.versions.size()), PathToText(request.exam), PathToText(folder), seed});
  console.out << Utf16ToUtf8(done) << "\n";
  for (const std::u16string& line : made.report) console.out << Utf16ToUtf8(line) << "\n";
}

void VerifyVersions(Console& console, const CommonOptions& options, const fs::path& folder,
                    const fs::path& source) {
  if (!source.empty()) ExamSession::RequireReadable(source);
  ExamSession session(console, options);
  const VersionTools tools(options);
  const VersionVerifier verifier(session.services, session.services.applicationFolder / kVersionWork,
                                 tools.ports);
  const VerifiedVersions verified = verifier.Verify(folder, source);
  if (!verified.faults.empty()) {
    for (std::size_t i = 0; i + 1 < verified.faults.size(); ++i)
      console.Complain(Utf16ToUtf8(verified.faults[i]));
    throw CommandError(Utf16ToUtf8(verified.faults.back()));
  }
  const std::u16string right =
      FillMessage(session.services.strings.Text(text_id::kVersionsRight),
                  {CountText(verified.record->plan.versions.size()), PathToText(folder)});
  console.out << Utf16ToUtf8(right) << "\n";
  for (const std::u16string& line : verified.notes) console.out << Utf16ToUtf8(line) << "\n";
}

void AddVersionsMake(CLI::App& versions, CommandContext& context) {
  CLI::App* make = AddCommand(versions, context, "make", "Make shuffled versions of an exam with their keys");
  const auto request = std::make_shared<MakeVersionsRequest>();
  AddPath(*make, "EXAM", request->exam, "Exam file (.exm)");
  AddVersionOptions(*make, *request);
  make->footer(
      "HOW is none, neighbours, within-kind, within-score or all; each question keeps its score.\n"
      "The same exam, seed and options give the same versions everywhere. All is verified at the end.");
  make->callback([&context, request] {
    if (request->request.names.empty()) throw CLI::RequiredError("--count or --names");
    MakeVersions(context.console, context.common, *request);
  });
}

void AddVersionsVerify(CLI::App& versions, CommandContext& context) {
  CLI::App* verify = AddCommand(versions, context, "verify", "Check versions and keys against their exam");
  const auto request = std::make_shared<VerifyRequest>();
  AddPath(*verify, "DIR", request->folder, "Folder of versions");
  verify->add_option("--source", request->source, "The exam (default: where it was when they were made)")
      ->type_name("EXAM");
  verify->footer("Says which file differs, and where. Fails if a single byte has changed.");
  verify->callback([&context, request] {
    VerifyVersions(context.console, context.common, request->folder, request->source);
  });
}

}  // namespace

void AddVersions(CLI::App& app, CommandContext& context) {
  CLI::App& versions =
      AddCommandGroup(app, context, "versions", "Make or check shuffled versions of an exam");
  AddVersionsMake(versions, context);
  AddVersionsVerify(versions, context);
}

}  // namespace quorvantis::cli
