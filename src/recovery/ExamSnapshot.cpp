// SPDX-License-Identifier: MIT
#include "recovery/ExamSnapshot.h"

#include "editor/ShownAnswers.h"
#include "model/ExamFields.h"
#include "recovery/SnapshotFields.h"
#include "text/PathText.h"

#include <functional>
#include <set>

namespace quorvantis {
namespace {

constexpr int kNoMoreQuestions = 0;

template <class Texts, class Visitor>
void VisitTexts(Texts& texts, Visitor& visitor) {
  for (auto& text : texts) visitor.Text(text);
}

/// The fields of the exam itself, except those that are taken from the form and the number of questions,
/// which is counted when the copy is read.
template <class Exam, class Visitor>
void VisitExamPart(Exam& exam, Visitor& visitor) {
  const auto visit = [&visitor](const FieldRow& field, auto& value) {
    const bool isElsewhere = field.name == ExamFieldName::Title || field.name == ExamFieldName::RandomMode ||
                             field.name == ExamFieldName::QuestionCount;
    if (!isElsewhere) visitor(field, value);
  };
  VisitPaperFields(visit, exam);
  for (std::size_t i = 0; i < kScoreRanges; ++i) VisitScoreRange(i, visit, exam);
  VisitDocumentFields(visit, exam);
  VisitTexts(exam.examAttachmentPaths, visitor);
  VisitTexts(exam.examAttachmentNames, visitor);
}

template <class Question, class Visitor>
void VisitWholeQuestion(Question& question, Visitor& visitor) {
  VisitQuestionFields(visitor, question);
  VisitTexts(question.attachmentPaths, visitor);
  VisitTexts(question.attachmentNames, visitor);
}

void WriteQuestion(const ExamQuestion& question, std::string& bytes) {
  SnapshotWriter fields(bytes);
  VisitWholeQuestion(question, fields);
}

std::size_t Hash(std::string_view bytes) {
  return std::hash<std::string_view>()(bytes);
}

void AddHash(std::size_t& sum, std::size_t hash) {
  constexpr std::size_t kSpread = 0x100000001B3u;
  sum = sum * kSpread + hash;
}

/// Adds the parts of an exam to its snapshot. Processes megabytes each second, so it copies as little as
/// possible.
class Gathering {
 public:
  Gathering() { WriteQuestion({}, empty_); }

  void AddPlace(const EditorState& state) {
    SnapshotWriter fields(snapshot.content);
    fields.Text(PathToText(state.FileName()));
    fields.Number(state.CurrentQuestion());
    AddHash(snapshot.state, Hash(snapshot.content));
  }

  void AddExam(const FrameSetExam& exam, const QuestionForm& form) {
    const std::size_t begin = snapshot.content.size();
    SnapshotWriter fields(snapshot.content);
    fields.Text(form.title);
    fields.Number(form.random);
    VisitExamPart(exam, fields);
    fields.Number(exam.displayNamesAmongPaths.size());
    VisitTexts(exam.displayNamesAmongPaths, fields);
    AddFiles(exam.examAttachmentPaths);
    std::erase_if(snapshot.files, [&exam](const std::u16string& entry) { return !exam.IsPath(entry); });
    AddHashes(Hash(From(begin)));
  }

  void AddQuestion(int number, const ExamQuestion& question) {
    const std::size_t begin = snapshot.content.size();
    SnapshotWriter(snapshot.content).Number(number);
    const std::size_t afterNumber = snapshot.content.size();
    WriteQuestion(question, snapshot.content);
    if (From(afterNumber) == empty_) {
      snapshot.content.resize(begin);
      return;
    }
    AddFiles(question.attachmentPaths);
    const std::size_t hash = Hash(From(begin));
    const ExamQuestion answers = AnswersAsShown(question);
    if (HasAnswers(question, answers)) {
      AddHashes(hash);
      return;
    }
    AddHash(snapshot.state, hash);
    std::string shown(From(begin).substr(0, afterNumber - begin));
    WriteQuestion(WithAnswers(question, answers), shown);
    if (std::string_view(shown).substr(afterNumber - begin) != empty_) {
      AddHash(snapshot.substance, Hash(shown));
    }
  }

  void End(const FrameSetExam& exam) {
    SnapshotWriter fields(snapshot.content);
    fields.Number(kNoMoreQuestions);
    fields.Number(exam.pathsWithoutContent.size());
    VisitTexts(exam.pathsWithoutContent, fields);
  }

  ExamSnapshot snapshot;

 private:
  std::string_view From(std::size_t begin) const { return std::string_view(snapshot.content).substr(begin); }

  void AddHashes(std::size_t hash) {
    AddHash(snapshot.state, hash);
    AddHash(snapshot.substance, hash);
  }

  void AddFiles(const AttachmentList& paths) {
    for (const std::u16string& path : paths) {
      if (!path.empty()) snapshot.files.push_back(path);
    }
  }

  std::string empty_;  ///< an empty question as bytes
};

void ReadNames(SnapshotReader& fields, std::vector<std::u16string>& names) {
  std::size_t count = 0;
  fields.Number(count);
  for (std::size_t i = 0; i < count && !fields.Failed(); ++i) fields.Text(names.emplace_back());
}

/// Copies by earlier versions of the program end before these.
void ReadPathsWithoutContent(SnapshotReader& fields, std::set<std::u16string>& paths) {
  if (fields.Failed() || fields.Rest().empty()) return;
  std::vector<std::u16string> list;
  ReadNames(fields, list);
  paths.insert(list.begin(), list.end());
}

}  // namespace

ExamSnapshot TakeSnapshot(const ExamEditor& editor, std::size_t expectedSize) {
  const FrameSetExam& exam = editor.state.document;
  const QuestionForm& form = editor.questions.Form();
  Gathering gathering;
  gathering.snapshot.content.reserve(expectedSize + expectedSize / 16);
  gathering.AddPlace(editor.state);
  gathering.AddExam(exam, form);
  for (int n = 1; n <= kMaxQuestions; ++n) {
    if (n != editor.state.CurrentQuestion()) {
      gathering.AddQuestion(n, exam.Question(n));
    } else {
      ExamQuestion shown = exam.Question(n);
      StoreForm(form, editor.state.CurrentKind(), shown);
      gathering.AddQuestion(n, shown);
    }
  }
  gathering.End(exam);
  return std::move(gathering.snapshot);
}

std::optional<SnapshotPlace> ReadSnapshot(std::string_view content, FrameSetExam& exam) {
  SnapshotReader fields(content);
  SnapshotPlace place;
  fields.Text(place.fileName);
  fields.Number(place.currentQuestion);
  fields.Text(exam.title);
  fields.Number(exam.randomMode);
  VisitExamPart(exam, fields);
  ReadNames(fields, exam.displayNamesAmongPaths);
  int number = kNoMoreQuestions;
  for (fields.Number(number); IsQuestionNumber(number) && !fields.Failed(); fields.Number(number)) {
    VisitWholeQuestion(exam.Question(number), fields);
  }
  ReadPathsWithoutContent(fields, exam.pathsWithoutContent);
  exam.CountQuestions();
  const bool whole = !fields.Failed() && number == kNoMoreQuestions && fields.Rest().empty();
  return whole && IsQuestionNumber(place.currentQuestion) ? std::optional(place) : std::nullopt;
}

}  // namespace quorvantis
