// SPDX-License-Identifier: MIT
#pragma once

#include "bank/index/BankPlace.h"
#include "bank/index/BankProblem.h"
#include "bank/index/Database.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quorvantis {

class Files;
class StringTable;

/// How an index was found when it was opened.
enum class IndexFound {
  Whole,
  Missing,  ///< it is new
  Older,    ///< of an older version: it is empty now
  Newer,    ///< of a newer version: it is empty now, and the newer program will empty it again
  Damaged,  ///< it is empty now; a file that was no database at all lies beside it as "<name>-damaged"
};

/// What is known of an exam file. Numbers are kept in the database: never change one.
enum class ExamState : int {
  Whole = 0,
  EndsEarly = 1,   ///< damaged; the questions before `firstMissing` are in the index
  NoExam = 2,      ///< nothing in the file suggests that it is an exam
  Unreadable = 3,  ///< it may not be read
  TooMuch = 4,     ///< it holds more than an exam can have; that was passed over
};

/// An exam of the bank.
struct BankExam {
  std::int64_t id = 0;
  std::filesystem::path path;
  std::u16string title;
  std::int64_t size = 0;     ///< bytes
  std::int64_t written = 0;  ///< nanoseconds since 1970
  bool isSettled = false;    ///< false if the file may have changed since without another time
  int questions = 0;         ///< in the index
  ExamState state = ExamState::Whole;
  int firstMissing = 0;  ///< the first question that is missing, 0 if it is not known

  /// Its title; without one, its file name without the extension.
  std::u16string Name() const;
};

/// The index of all exams in the folders that a teacher has named: an SQLite file that can be thrown away at
/// any time, since it holds nothing but what is in the exam files. Several programs may use one at once: one
/// of them writes at a time, the others read on. It survives the end of a program at any moment. An object
/// belongs to one thread; each thread opens its own.
class BankIndex {
 public:
  static constexpr int kVersion = 2;        ///< of what is in the file; raise it with every change
  static constexpr int kPatience = 10'000;  ///< milliseconds to wait for other programs

  /// Opens the index, or makes an empty one. Nothing with `problem` set if that fails. `files` writes the
  /// list of folders and must outlive the index.
  static std::optional<BankIndex> Open(const BankPlace& place, Files& files, BankProblem& problem);

  IndexFound Found() const { return found_; }
  const BankPlace& Place() const { return place_; }

  /// The folders of the bank, in the order in which they were added: full paths without links.
  std::vector<std::filesystem::path> Folders() const;

  /// Adds a folder with all below it. One that is in the bank already stays as it is.
  BankProblem AddFolder(const std::filesystem::path& folder);

  /// Takes a folder out, whether or not it still exists. `wasThere` tells whether it was in the bank. Its
  /// exams are no longer found; the next update removes them from the file.
  BankProblem RemoveFolder(const std::filesystem::path& folder, bool& wasThere);

  /// All exams, or those in which something is wrong, by path. Empty, with `problem` set, when the index
  /// cannot be read.
  std::vector<BankExam> Exams(BankProblem& problem) const { return ReadExams("", problem); }
  std::vector<BankExam> DamagedExams(BankProblem& problem) const {
    return ReadExams("WHERE state <> 0", problem);
  }

  /// For the classes of the bank: throws DatabaseError.
  Database& Data() const { return *database_; }

  /// What a failure of Data means. An index that turns out to be damaged is emptied, to be filled again by
  /// the next update.
  BankProblem ProblemAfter(const DatabaseError& error);

 private:
  BankIndex(BankPlace place, Files& files, std::unique_ptr<Database> database, IndexFound found);

  BankProblem ChangeFolders(const std::function<void(std::vector<std::filesystem::path>&)>& change);
  std::vector<BankExam> ReadExams(const char* condition, BankProblem& problem) const;

  BankPlace place_;
  Files* files_;
  std::unique_ptr<Database> database_;
  IndexFound found_;
};

/// The columns of table "exam" that make a BankExam, and one that begins at `column` of a row.
inline constexpr const char* kExamColumns =
    "exam.id, exam.path, exam.title, exam.size, exam.written, exam.settled, exam.questions, exam.state, "
    "exam.first_missing";
constexpr int kExamColumnCount = 9;
BankExam ExamFrom(const Statement& row, int column);

/// What is wrong with an exam, for the user; empty if nothing is.
std::u16string StateText(const BankExam& exam, const StringTable& strings);

}  // namespace quorvantis
