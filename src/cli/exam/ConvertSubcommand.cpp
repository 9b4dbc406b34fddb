// SPDX-License-Identifier: MIT
#include "cli/console/CommandError.h"
#include "cli/console/InputFile.h"
#include "cli/console/WhyUnreadable.h"
#include "cli/exam/ExamSubcommands.h"
#include "cli/options/CommandOptions.h"
#include "cli/session/ExamSession.h"
#include "cli/session/LossMessages.h"
#include "examfile/ByteSource.h"
#include "examfile/ExamFileTag.h"
#include "examfile/ExamFileVersions.h"
#include "examfile/ExamFileWriter.h"
#include "examfile/SavingLosses.h"
#include "examfile/WorkFolder.h"
#include "exchange/Formats.h"
#include "exchange/exam/ExamToExchange.h"
#include "exchange/exam/ExchangeToExam.h"
#include "platform/WholeFile.h"
#include "platform/texts/ExchangeTexts.h"
#include "text/MessageText.h"
#include "text/PathText.h"
#include "text/Utf.h"

#include <algorithm>
#include <array>

namespace quorvantis::cli {
namespace {

namespace fs = std::filesystem;

/// The arguments of `convert`.
struct ConvertRequest {
  std::filesystem::path source;
  std::filesystem::path target;
  std::string from;       ///< the name of a format; empty to recognise it
  std::string to;         ///< likewise; empty for that of the extension
  bool isStrict = false;  ///< whether to write nothing if something would be lost
};

constexpr std::string_view kExam = "exam";

bool NamesExams(std::string_view format) {
  return format == kExam || format == "exm";
}

bool HasExamExtension(const fs::path& file) {
  return ExtensionOrNothing(PathToText(file.filename())) == u"exm";
}

bool IsTaggedExam(const fs::path& file) {
  ByteSource source(file);
  const auto hasTag = [&source](const ExamFileVersion* version) {
    return EncodingByTag(source, *version).has_value();
  };
  return std::ranges::any_of(std::array{&kCurrentVersion, &kVersion202, &kVersion0214}, hasTag);
}

std::string Names(bool (*isListed)(const FormatRow&)) {
  std::string names(kExam);
  for (const FormatRow& format : Formats()) {
    if (isListed(format)) names.append(", ").append(format.name);
  }
  return names;
}

std::string ReadableFormats() {
  return Names([](const FormatRow& format) { return format.reader != nullptr; });
}

std::string WritableFormats() {
  return Names([](const FormatRow& format) { return format.writer != nullptr; });
}

/// Converts one file. Where an exam is meant, the format is null.
class Conversion {
 public:
  Conversion(Console& console, const CommonOptions& options, const ConvertRequest& request)
      : session_(console, options), request_(request) {}

  void Run() {
    const FormatRow* const to = TargetFormat();
    Read();
    const std::string bytes = to != nullptr ? Written(*to) : std::string();
    bool loses = TellNotes();
    if (to == nullptr && TellLossesOfExam()) loses = true;
    if (session_.exam.readDoubt != ReadDoubt::None) loses = true;  // told when it was read
    if (loses && request_.isStrict)
      throw CommandError(request_.target.string() + ": is not written, because something would be lost");
    if (to == nullptr) return WriteExam();
    if (const auto error = SaveWholeFile(session_.services.files, request_.target, bytes))
      throw NotWritten(error);
  }

 private:
  const FormatRow* TargetFormat() const {
    const bool isExam = request_.to.empty() ? HasExamExtension(request_.target) : NamesExams(request_.to);
    if (isExam) return nullptr;
    const FormatRow* format = request_.to.empty() ? FormatForFile(request_.target) : FormatNamed(request_.to);
    if (format == nullptr && !request_.to.empty())
      throw CommandError("--to: " + request_.to + " is no format; there are " + WritableFormats());
    if (format == nullptr)
      throw CommandError(request_.target.string() +
                         ": does not tell the format; name it with --to: " + WritableFormats());
    if (format->writer == nullptr) throw CommandError("--to: " + request_.to + " can only be read");
    return format;
  }

  void Read() {
    const ExchangeSource source(request_.source);
    if (!source.IsOpen())
      throw CommandError(request_.source.string() + ": cannot be opened. " + WhyUnreadable(request_.source));
    if (const FormatRow* const format = SourceFormat(source)) {
      ReadForeign(*format, source);
    } else {
      session_.Load(request_.source);
      session_.RequireUnpacked(request_.source);
      if (session_.exam.readDoubt == ReadDoubt::NoExam)
        throw CommandError(request_.source.string() + ": is no exam");
      isExam_ = true;
    }
  }

  const FormatRow* SourceFormat(const ExchangeSource& source) const {
    if (!request_.from.empty()) {
      const FormatRow* const named = FormatNamed(request_.from);
      if (named == nullptr && !NamesExams(request_.from))
        throw CommandError("--from: " + request_.from + " is no format; there are " + ReadableFormats());
      if (named != nullptr && named->reader == nullptr)
        throw CommandError("--from: " + request_.from + " can only be written");
      return named;
    }
    if (HasExamExtension(request_.source) || IsTaggedExam(request_.source)) return nullptr;
    if (source.Head().empty()) throw CommandError(request_.source.string() + ": is empty");
    const FormatRow* const recognised = RecogniseFormat(source);
    if (recognised == nullptr)
      throw CommandError(request_.source.string() + ": is of none of the formats " + ReadableFormats() +
                         "; name the right one with --from, or use import for a paper");
    if (recognised->reader == nullptr)
      throw CommandError(request_.source.string() + ": is " + std::string(recognised->name) +
                         ", which import --learn reads");
    return recognised;
  }

  void ReadForeign(const FormatRow& format, const ExchangeSource& source) {
    ExamServices& services = session_.services;
    PrepareWorkFolder(session_.exam, services.applicationFolder, request_.source);
    ExchangeFiles files(WorkFolder(session_.exam, services.applicationFolder), notes_);
    ReadingTools tools{services.strings, files, notes_, services.progress};
    auto read = format.reader()->Read(source, tools);
    notes_.Begin(0);
    if (read && !read->questions.empty()) {
      StoreExchanged(*read, session_.exam, 1, notes_);
      return;
    }
    TellNotes();
    throw CommandError(request_.source.string() + ": has no questions that can be read as " +
                       Utf16ToUtf8(services.strings.Text(format.title)));
  }

  std::string Written(const FormatRow& format) {
    const ExamServices& services = session_.services;
    ExchangeNotes ofNoInterest;  // a reader has told what its texts have lost
    ExchangedExam exam = ExamToExchange(session_.exam, isExam_ ? notes_ : ofNoInterest);
    if (exam.questions.empty())
      throw CommandError(request_.target.string() + ": is not written. " +
                         Utf16ToUtf8(services.strings.Text(text_id::kExchangeEmptyExam)));
    const ExchangedExam held = HeldExam(format.held, std::move(exam), notes_);
    if (held.questions.empty()) {
      TellNotes();
      throw CommandError(request_.target.string() + ": is not written. " +
                         Utf16ToUtf8(FillMessage(services.strings.Text(text_id::kExchangeHoldsNothing),
                                                 {services.strings.Text(format.title)})));
    }
    return format.writer()->Write(held, services.strings, services.progress);
  }

  bool TellNotes() {
    std::vector<ExchangeNote> notes = notes_.All();
    std::ranges::stable_sort(notes, {}, &ExchangeNote::question);
    for (const ExchangeNote& note : notes)
      session_.console.Complain(request_.source.string() + ": " +
                                Utf16ToUtf8(NoteLine(note, session_.services.strings)));
    return !notes.empty();
  }

  bool TellLossesOfExam() {
    TellSavingLosses(session_.console, request_.source, session_.exam);
    return !FindSavingLosses(session_.exam, session_.services.longAnswerFlags).empty();
  }

  void WriteExam() {
    if (const auto error = ExamFileWriter(session_.exam, session_.services).Write(request_.target))
      throw NotWritten(error);
  }

  CommandError NotWritten(const std::error_code& error) const {
    return CommandError(request_.target.string() + ": cannot be written: " + error.message());
  }

  ExamSession session_;
  const ConvertRequest& request_;
  ExchangeNotes notes_;
  bool isExam_ = false;  ///< the source
};

void Convert(Console& console, const CommonOptions& options, const ConvertRequest& request) {
  RefuseToOverwrite(request.source, request.target);
  Conversion(console, options, request).Run();
}

}  // namespace

void AddConvert(CLI::App& app, CommandContext& context) {
  CLI::App* command =
      AddCommand(app, context, "convert", "Convert between exams and files of learning systems");
  const auto request = std::make_shared<ConvertRequest>();
  AddPath(*command, "IN", request->source, "File to read");
  AddPath(*command, "OUT", request->target, "File to write");
  command->add_option("--from", request->from, "Format of IN (default: recognised by its content)")
      ->type_name("F");
  command->add_option("--to", request->to, "Format of OUT (default: that of its extension)")->type_name("F");
  command->add_flag("--strict", request->isStrict, "Write nothing if something would be lost");
  command->footer("Formats to read: " + ReadableFormats() + ".\nFormats to write: " + WritableFormats() +
                  ".\nTells on standard error what is lost, question by question.");
  command->callback([&context, request] { Convert(context.console, context.common, *request); });
}

}  // namespace quorvantis::cli
