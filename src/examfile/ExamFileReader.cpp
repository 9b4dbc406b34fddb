// SPDX-License-Identifier: MIT
#include "examfile/ExamFileReader.h"

#include "examfile/AttachmentUnpacker.h"
#include "examfile/ExamFileTag.h"
#include "examfile/UntaggedEncoding.h"
#include "model/AnswerLetters.h"
#include "model/QuestionKinds.h"

#include <algorithm>

namespace quorvantis {
namespace {

/// Keeps only the data that a question's kind uses; an unknown kind keeps everything. The letters stay as
/// they were read, for every kind.
void CleanByKind(ExamQuestion& question) {
  const KindRow* kind = FindKind(question.kind);
  if (kind == nullptr) return;
  const auto clean = [kind](const FieldRow& field, auto& value) {
    if (!kind->Keeps(field.name)) value = {};
  };
  VisitQuestionFields(clean, question);
  if (kind->answer.options) question.answerMask = AnswerLettersToMask(question.answerLetters);
}

/// Reads one file; lives only as long as that takes.
class Reading {
 public:
  Reading(FrameSetExam& exam, const ExamServices& services, ByteSource& source, const ExamFileForm& form,
          AttachmentSink* sink)
      : exam_(exam),
        source_(source),
        form_(form),
        fields_(source, form.encoding, services.codePage),
        unpacker_(source, fields_, form, exam, services, sink) {}

  void ReadExam(ExamReadOutcome& outcome) {
    VisitHeader(*form_.version, exam_, fields_);
    const bool headerMissing = source_.Ended();
    const int questionsInFile = exam_.questionCount;
    exam_.questionCount = std::clamp(questionsInFile, 0, kMaxQuestions);
    if (form_.version->HasAttachments()) unpacker_.ExtractExamAttachments();
    int question = 1;
    while (question <= exam_.questionCount && !source_.Ended()) {
      ReadQuestion(question);
      if (!source_.Ended()) ++question;
    }
    outcome.endsEarly = source_.Ended();
    outcome.firstMissingQuestion = headerMissing || exam_.questionCount > 0 ? question : 0;
    outcome.filesNotCreated = unpacker_.FilesNotCreated();
    outcome.passedOver = unpacker_.FilesPassedOver();
    const bool goesOn = !source_.Ended() && source_.Position() < source_.Size();
    if (goesOn) outcome.passedOver.questions = std::max(questionsInFile - kMaxQuestions, 0);
  }

 private:
  void ReadQuestion(int number) {
    ExamQuestion& question = exam_.Question(number);
    std::u16string shortAnswer;
    VisitQuestion(*form_.version, question, shortAnswer, fields_);
    const bool fieldsWhole = !source_.Ended();
    const bool longAnswer = form_.version->HasLongAnswers() && shortAnswer == kLongAnswerMarker;
    if (!longAnswer) question.answerText = shortAnswer;
    if (form_.version->notesOralQuestions && AnswerOf(question.kind).oral) NoteOralQuestion(number);
    if (form_.version->HasAttachments()) unpacker_.ExtractQuestionAttachments(number);
    if (longAnswer) VisitLongAnswer(*form_.version, question.answerText, fields_);
    if (fieldsWhole) {
      CleanByKind(question);
    } else {  // the kind is missing: keep every text, and build the mask from the letters
      question.answerMask = AnswerLettersToMask(question.answerLetters);
    }
  }

  void NoteOralQuestion(int number) {
    exam_.hasOralQuestion = 1;
    if (exam_.firstOralQuestion == 0) exam_.firstOralQuestion = number;
  }

  FrameSetExam& exam_;
  ByteSource& source_;
  ExamFileForm form_;
  FieldReader fields_;
  AttachmentUnpacker unpacker_;
};

}  // namespace

ReadDoubt DoubtOf(const ExamReadOutcome& outcome, const FrameSetExam& exam) {
  const bool isUntagged = outcome.form.version == &kUntaggedVersion;
  if (outcome.opened && isUntagged && (outcome.endsEarly || exam.questionCount == 0))
    return ReadDoubt::NoExam;
  if (!outcome.opened || outcome.endsEarly) return ReadDoubt::ReadInPart;
  return outcome.passedOver.IsAnything() ? ReadDoubt::PassedOver : ReadDoubt::None;
}

bool ExamFileReader::HasTag(const ExamFileVersion& version) {
  return IsOpen() && EncodingByTag(source_, version).has_value();
}

FieldEncoding ExamFileReader::EncodingOf(const ExamFileVersion& version) {
  if (version.tag.empty()) return UntaggedEncoding(source_.Peek(kUntaggedStart), services_.codePage);
  return EncodingByTag(source_, version).value_or(FieldEncoding::EightBit);
}

ExamReadOutcome ExamFileReader::Read(const ExamFileVersion& version, AttachmentSink* sink) {
  ExamReadOutcome outcome;
  if (!IsOpen()) return outcome;
  outcome.opened = true;
  outcome.form = {&version, EncodingOf(version)};
  source_.Take(BytesBeforeTitle(outcome.form));
  if (version.notesOralQuestions) exam_.hasOralQuestion = exam_.firstOralQuestion = 0;
  Reading(exam_, services_, source_, outcome.form, sink).ReadExam(outcome);
  return outcome;
}

ExamReadOutcome ReadWithoutUnpacking(FrameSetExam& exam, const ExamServices& services,
                                     const std::filesystem::path& file, AttachmentSink& sink) {
  ExamFileReader reader(exam, services, file);
  const ExamFileVersion* version = &kUntaggedVersion;
  for (const ExamFileVersion* tagged : {&kVersion0214, &kVersion202, &kCurrentVersion}) {
    if (reader.HasTag(*tagged)) version = tagged;
  }
  const ExamReadOutcome outcome = reader.Read(*version, &sink);
  exam.readDoubt = DoubtOf(outcome, exam);
  return outcome;
}

}  // namespace quorvantis
