// SPDX-License-Identifier: MIT
#include "bank/index/IndexWriter.h"

#include "bank/index/BankFolders.h"
#include "bank/index/QuestionMarks.h"
#include "model/QuestionKinds.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace quorvantis {
namespace {

/// Whether it is written down what is right.
bool HasKey(const ExamQuestion& question) {
  const AnswerParts parts = AnswerOf(question.kind);
  return (parts.options && question.answerMask != 0) || (parts.fillIn && !question.answerText.empty()) ||
         (parts.essay && !question.essayAnswer.empty());
}

QuestionTexts TextsOf(const ExamQuestion& question, const std::vector<IndexedFile>& files) {
  QuestionTexts texts{.text = question.text,
                      .options = {question.options.begin(), question.options.end()},
                      .answer = question.answerText,
                      .essay = question.essayAnswer,
                      .files = {}};
  texts.files.reserve(files.size());
  for (const IndexedFile& file : files) texts.files.emplace_back(file.name);
  return texts;
}

/// The texts of a question of the index, as they were when it got there.
class KeptTexts {
 public:
  /// `row` is one of "content", from the text on; `files` the names of the attached files.
  KeptTexts(const Statement& row, int column, std::vector<std::u16string> files) : files_(std::move(files)) {
    for (std::size_t i = 0; i < kColumns; ++i) texts_[i] = row.Text(column + static_cast<int>(i));
  }

  QuestionTexts Texts() const {
    QuestionTexts texts{.text = texts_[0],
                        .options = {texts_.begin() + 1, texts_.begin() + 1 + kOptionCount},
                        .answer = texts_[kColumns - 2],
                        .essay = texts_[kColumns - 1],
                        .files = {files_.begin(), files_.end()}};
    return texts;
  }

 private:
  static constexpr std::size_t kColumns = kOptionCount + 3;

  std::array<std::u16string, kColumns> texts_;
  std::vector<std::u16string> files_;
};

}  // namespace

IndexWriter::IndexWriter(BankIndex& index, ExamServices& services, const FileDigest& digest)
    : data_(index.Data()),
      digest_(digest),
      folders_(index.Folders()),
      exam_(services, digest),
      find_(data_.Prepare("SELECT id, size, written, settled, hash FROM exam WHERE path = ?")),
      touch_(data_.Prepare("UPDATE exam SET size = ?2, written = ?3, settled = ?4 WHERE id = ?1")),
      insertExam_(data_.Prepare("INSERT OR REPLACE INTO exam VALUES(?,?,?,?,?,?,?,?,?,?)")),
      insertFile_(data_.Prepare("INSERT INTO attached VALUES(?,?,?,?,?,?)")),
      insertQuestion_(data_.Prepare("INSERT INTO question VALUES(NULL,?,?,?,?,?,?)")),
      insertContent_(data_.Prepare("INSERT INTO content VALUES(?,?,?,?,?,?,?,?,?,?,?,?)")),
      insertGram_(data_.Prepare("INSERT INTO gram(rowid, text, options, answers, files) VALUES(?,?,?,?,?)")),
      insertShort_(data_.Prepare("INSERT INTO short(rowid, tokens) VALUES(?,?)")),
      deleteGram_(data_.Prepare(
          "INSERT INTO gram(gram, rowid, text, options, answers, files) VALUES('delete',?,?,?,?,?)")),
      deleteShort_(data_.Prepare("INSERT INTO short(short, rowid, tokens) VALUES('delete',?,?)")) {}

std::optional<KnownExam> IndexWriter::Find(const std::filesystem::path& file) {
  find_.Reset();
  find_.BindBytes(1, file.native());
  if (!find_.Step()) return std::nullopt;
  KnownExam known{find_.Integer(0),
                  {find_.Integer(1), find_.Integer(2)},
                  find_.Integer(3) != 0,
                  std::string(find_.Bytes(4))};
  find_.Reset();
  return known;
}

bool IndexWriter::Remove(const std::filesystem::path& file) {
  Transaction transaction(data_);
  const bool wasThere = RemoveKnown(file);
  transaction.Commit();
  return wasThere;
}

IndexWriter::Outcome IndexWriter::Update(const std::filesystem::path& file) {
  const std::optional<FileStamp> stamp = FileStamp::Of(file);
  if (!stamp) return UpdateMissing(file);
  const auto isUpToDate = [&](const std::optional<KnownExam>& known) {
    return known && known->isSettled && known->stamp == *stamp;
  };
  const std::optional<KnownExam> before = Find(file);
  if (isUpToDate(before)) return Outcome::Unchanged;
  KnownExam fresh{0, *stamp, stamp->IsSettled(), digest_.OfFile(file)};
  if (before && !fresh.hash.empty() && fresh.hash == before->hash) {
    if (before->stamp != *stamp || fresh.isSettled) Touch(before->id, fresh);
    return Outcome::Unchanged;
  }
  exam_.Read(file);
  const std::optional<FileStamp> after = FileStamp::Of(file);
  if (!after) return UpdateMissing(file);
  // What could not be read is tried again each time: permissions change without a new stamp.
  const bool isRead = !fresh.hash.empty() && exam_.State() != ExamState::Unreadable;
  fresh.isSettled = fresh.isSettled && isRead && after == stamp;
  Transaction transaction(data_);
  const std::optional<KnownExam> known = Find(file);
  if (isUpToDate(known)) return Outcome::Unchanged;
  if (known) RemoveQuestions(known->id);
  const std::int64_t exam = StoreExam(file, fresh, known);
  for (int number = 0; number <= exam_.QuestionCount(); ++number) StoreFiles(exam, number);
  for (int number = 1; number <= exam_.QuestionCount(); ++number) StoreQuestion(exam, number);
  transaction.Commit();
  return known ? Outcome::Changed : Outcome::Added;
}

IndexWriter::Outcome IndexWriter::UpdateMissing(const std::filesystem::path& file) {
  return IsGone(file) && Remove(file) ? Outcome::Gone : Outcome::Unchanged;
}

/// Whether there is no such file, while the folder of the bank in which it lay is there.
bool IndexWriter::IsGone(const std::filesystem::path& file) const {
  std::error_code ignored;
  const std::filesystem::file_type type = std::filesystem::status(file, ignored).type();
  if (type == std::filesystem::file_type::none || type == std::filesystem::file_type::unknown) return false;
  bool isInFolder = false;
  for (const std::filesystem::path& folder : folders_) {
    if (!LiesIn(file, folder)) continue;
    if (std::filesystem::is_directory(folder, ignored)) return true;
    isInFolder = true;
  }
  return !isInFolder;
}

void IndexWriter::Touch(std::int64_t exam, const KnownExam& fresh) {
  touch_.Bind(1, exam).Bind(2, fresh.stamp.size).Bind(3, fresh.stamp.written);
  touch_.Bind(4, std::int64_t{fresh.isSettled}).Run();
}

std::int64_t IndexWriter::StoreExam(const std::filesystem::path& file, const KnownExam& fresh,
                                    const std::optional<KnownExam>& known) {
  known ? insertExam_.Bind(1, known->id) : insertExam_.BindNull(1);
  insertExam_.BindBytes(2, file.native()).BindText(3, exam_.Title());
  insertExam_.Bind(4, fresh.stamp.size).Bind(5, fresh.stamp.written).Bind(6, std::int64_t{fresh.isSettled});
  insertExam_.BindText(7, fresh.hash).Bind(8, static_cast<std::int64_t>(exam_.State()));
  insertExam_.Bind(9, std::int64_t{exam_.FirstMissing()}).Bind(10, std::int64_t{exam_.QuestionCount()});
  insertExam_.Run();
  return known ? known->id : data_.LastRow();
}

void IndexWriter::StoreFiles(std::int64_t exam, int number) {
  std::int64_t slot = 0;
  for (const IndexedFile& file : exam_.Files(number)) {
    insertFile_.Bind(1, exam).Bind(2, std::int64_t{number}).Bind(3, slot++);
    insertFile_.BindText(4, file.name).Bind(5, file.size).BindText(6, file.hash).Run();
  }
}

void IndexWriter::StoreQuestion(std::int64_t exam, int number) {
  const ExamQuestion& question = exam_.Question(number);
  const auto files = static_cast<std::int64_t>(exam_.Files(number).size());
  insertQuestion_.Bind(1, exam)
      .Bind(2, std::int64_t{number})
      .Bind(3, static_cast<std::int64_t>(question.kind));
  insertQuestion_.Bind(4, std::int64_t{HasKey(question)}).Bind(5, files);
  const std::optional<double> score = exam_.Score(number);
  score ? insertQuestion_.Bind(6, *score) : insertQuestion_.BindNull(6);
  insertQuestion_.Run();
  const std::int64_t id = data_.LastRow();
  StoreContent(id, number);
  StoreTexts(id, SearchedTexts(TextsOf(question, exam_.Files(number))));
}

void IndexWriter::StoreContent(std::int64_t id, int number) {
  const ExamQuestion& question = exam_.Question(number);
  insertContent_.Bind(1, id).BindText(2, question.text);
  int place = 3;
  for (const std::u16string& option : question.options) insertContent_.BindText(place++, option);
  insertContent_.BindText(8, question.answerText).BindText(9, question.essayAnswer);
  const QuestionMarks marks(question, exam_.Files(number), digest_);
  insertContent_.Bind(10, std::int64_t{question.answerMask}).BindText(11, marks.key);
  insertContent_.BindBytes(12, marks.sketch).Run();
}

void IndexWriter::StoreTexts(std::int64_t id, const SearchedTexts& texts) {
  insertGram_.Bind(1, id).BindText(2, texts.text).BindText(3, texts.options);
  insertGram_.BindText(4, texts.answers).BindText(5, texts.files).Run();
  insertShort_.Bind(1, id).BindText(2, texts.shortTokens).Run();
}

void IndexWriter::Unlist(std::int64_t id, const SearchedTexts& texts) {
  deleteGram_.Bind(1, id).BindText(2, texts.text).BindText(3, texts.options);
  deleteGram_.BindText(4, texts.answers).BindText(5, texts.files).Run();
  deleteShort_.Bind(1, id).BindText(2, texts.shortTokens).Run();
}

bool IndexWriter::RemoveKnown(const std::filesystem::path& file) {
  const std::optional<KnownExam> known = Find(file);
  if (!known) return false;
  RemoveQuestions(known->id);
  data_.Prepare("DELETE FROM exam WHERE id = ?").Bind(1, known->id).Run();
  return true;
}

/// The exam keeps its row.
void IndexWriter::RemoveQuestions(std::int64_t exam) {
  Statement names = data_.Prepare("SELECT name FROM attached WHERE exam = ? AND number = ? ORDER BY slot");
  Statement rows = data_.Prepare(
      "SELECT question.id, number, text, option_a, option_b, option_c, option_d, option_e, answer, essay "
      "FROM question JOIN content ON content.question = question.id WHERE exam = ?");
  rows.Bind(1, exam);
  while (rows.Step()) {
    std::vector<std::u16string> files;
    names.Bind(1, exam).Bind(2, rows.Integer(1));
    while (names.Step()) files.push_back(names.Text(0));
    Unlist(rows.Integer(0), SearchedTexts(KeptTexts(rows, 2, std::move(files)).Texts()));
  }
  for (const char* sql : {"DELETE FROM content WHERE question IN (SELECT id FROM question WHERE exam = ?)",
                          "DELETE FROM question WHERE exam = ?", "DELETE FROM attached WHERE exam = ?"})
    data_.Prepare(sql).Bind(1, exam).Run();
}

}  // namespace quorvantis
