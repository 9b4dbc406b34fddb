// SPDX-License-Identifier: MIT
#include "exchange/ForeignExam.h"

#include "editor/WorkCopies.h"
#include "examfile/WorkFolder.h"
#include "exchange/exam/ExchangeToExam.h"
#include "platform/texts/ExchangeTexts.h"
#include "taking/PrivateServices.h"
#include "text/MessageText.h"
#include "text/PathText.h"
#include "text/Utf.h"

#include <algorithm>
#include <map>
#include <system_error>
#include <utility>

namespace quorvantis {
namespace {

namespace fs = std::filesystem;

std::error_code WhyNotOpen(const fs::path& file) {
  std::error_code error;
  const fs::file_status status = fs::status(file, error);
  if (!fs::exists(status)) return error ? error : std::make_error_code(std::errc::no_such_file_or_directory);
  if (fs::is_directory(status)) return std::make_error_code(std::errc::is_a_directory);
  if (!fs::is_regular_file(status)) return std::make_error_code(std::errc::not_supported);
  return std::make_error_code(std::errc::permission_denied);
}

bool HasExamExtension(const fs::path& file) {
  return ExtensionOrNothing(PathToText(file.filename())) == u"exm";
}

}  // namespace

ForeignExam::ForeignExam(const ExamServices& services, fs::path folder, fs::path file,
                         const FormatRow* format, Progress& progress)
    : file_(std::move(file)),
      folder_(std::move(folder)),
      services_(PrivateServices(services, folder_, messages_, flags_)),
      exam_(services_),
      format_(format) {
  Read(progress);
}

ForeignExam::~ForeignExam() {
  RemoveFolder(folder_);
}

void ForeignExam::Read(Progress& progress) {
  const auto problem = [this](int text, std::u16string_view what) {
    problem_ = FillMessage(services_.strings.Text(text), {PathToText(file_), what});
  };
  const ExchangeSource source(file_);
  if (!source.IsOpen()) return problem(text_id::kExchangeNotOpen, Utf8ToUtf16(WhyNotOpen(file_).message()));
  if (format_ == nullptr && HasExamExtension(file_)) return problem(text_id::kExchangeIsExam, {});
  if (format_ == nullptr) format_ = RecogniseFormat(source);
  if (format_ == nullptr) return problem(text_id::kExchangeNoFormat, {});
  if (format_->reader == nullptr) {
    const std::u16string title = services_.strings.Text(format_->title);
    format_ = nullptr;
    return problem(text_id::kExchangeIsPaper, title);
  }
  ReadQuestions(source, progress);
  if (questionCount_ == 0) problem(text_id::kExchangeNothingRead, services_.strings.Text(format_->title));
}

void ForeignExam::ReadQuestions(const ExchangeSource& source, Progress& progress) {
  MakeWorkRoot(folder_.parent_path());
  RemoveFolder(folder_);  // of a run that was killed
  std::error_code ignored;
  fs::create_directory(folder_, ignored);
  ExchangeFiles files(folder_, notes_);
  ReadingTools tools{services_.strings, files, notes_, progress};
  auto read = format_->reader()->Read(source, tools);
  notes_.Begin(0);
  if (!read) return;
  read_ = *std::move(read);
  questionCount_ = StoreExchanged(read_, exam_, 1, notes_) - 1;
}

std::vector<ExchangeNote> ForeignExam::NotesByOwnNumbers() const {
  std::map<int, int> numbers;
  for (std::size_t i = 0; i < read_.questions.size(); ++i)
    numbers.emplace(read_.questions[i].number, static_cast<int>(i + 1));
  std::vector<ExchangeNote> notes = Notes();
  for (ExchangeNote& note : notes) {
    const auto own = numbers.find(note.question);
    note.question = own != numbers.end() ? own->second : 0;
  }
  std::ranges::stable_sort(notes, {}, &ExchangeNote::question);
  return notes;
}

ForeignQuestions ForeignExam::Take(const std::vector<int>& numbers) const {
  ExchangedExam chosen{read_.title, read_.shufflesOptions, {}};
  for (const int number : numbers)
    chosen.questions.push_back(read_.questions[static_cast<std::size_t>(number - 1)]);
  ForeignQuestions taken{FrameSetExam(exam_.Services())};
  ExchangeNotes toldAlready;
  const int end = StoreExchanged(chosen, taken.exam, 1, toldAlready);
  for (int number = 1; number < end; ++number) {
    taken.questions.push_back(WholeQuestionOf(taken.exam, flags_, number));
    taken.questions.back().longAnswer = IsLongAnswer(taken.questions.back().question.answerText);
  }
  return taken;
}

}  // namespace quorvantis
