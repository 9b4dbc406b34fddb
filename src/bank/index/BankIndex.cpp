// SPDX-License-Identifier: MIT
#include "bank/index/BankIndex.h"

#include "bank/index/BankFolders.h"
#include "bank/index/BankSchema.h"
#include "platform/Files.h"
#include "platform/StringTable.h"
#include "platform/texts/BankTexts.h"
#include "text/MessageText.h"
#include "text/NumberText.h"
#include "text/PathText.h"

#include <algorithm>
#include <fstream>
#include <sqlite3.h>
#include <system_error>
#include <utility>

namespace quorvantis {
namespace fs = std::filesystem;
namespace {

/// What SQLite keeps beside a database.
constexpr const char* kCompanions[] = {"-wal", "-shm", "-journal"};

fs::path Beside(const fs::path& file, const char* suffix) {
  fs::path path = file;
  path += suffix;
  return path;
}

/// Whether a file has content, and it is not that of a database.
bool IsNoDatabase(const fs::path& file) {
  constexpr std::string_view kStart("SQLite format 3\0", 16);
  std::error_code error;
  if (!fs::is_regular_file(file, error) || fs::file_size(file, error) == 0 || error) return false;
  std::string start(kStart.size(), '\0');
  std::ifstream(file, std::ios::binary).read(start.data(), static_cast<std::streamsize>(start.size()));
  return start != kStart;
}

/// It may be a file that was named by mistake, so it is not removed.
void SetAside(const fs::path& file) {
  std::error_code ignored;
  fs::rename(file, Beside(file, "-damaged"), ignored);
  for (const char* companion : kCompanions) fs::remove(Beside(file, companion), ignored);
}

void SetUp(Database& database) {
  database.Execute("PRAGMA journal_mode=WAL; PRAGMA synchronous=NORMAL; PRAGMA temp_store=MEMORY");
  database.Execute("PRAGMA cache_size=-16000; PRAGMA wal_autocheckpoint=2000");
}

void CreateTables(Database& database) {
  SetUp(database);
  Transaction transaction(database);
  if (database.Number("PRAGMA application_id") != 0) return;  // another program was faster
  database.Execute(kBankSchema);
  database.Execute(("PRAGMA application_id=" + std::to_string(kBankApplicationId)).c_str());
  database.Execute(("PRAGMA user_version=" + std::to_string(BankIndex::kVersion)).c_str());
  transaction.Commit();
}

/// Nothing for a database of something else.
std::optional<IndexFound> StateOf(Database& database) {
  const std::int64_t application = database.Number("PRAGMA application_id");
  const std::int64_t version = database.Number("PRAGMA user_version");
  const std::int64_t tables = database.Number("SELECT count(*) FROM sqlite_schema");
  if (application == 0 && version == 0 && tables == 0) return IndexFound::Missing;
  if (application != kBankApplicationId) return std::nullopt;
  if (version != BankIndex::kVersion)
    return version < BankIndex::kVersion ? IndexFound::Older : IndexFound::Newer;
  return IndexFound::Whole;
}

/// Opens a file that is, or becomes, an index. Null if it is a database of something else.
std::unique_ptr<Database> OpenDatabase(const fs::path& file, IndexFound& found) {
  auto database = std::make_unique<Database>(file, BankIndex::kPatience);
  const auto state = StateOf(*database);
  if (!state) return nullptr;
  found = *state;
  if (found == IndexFound::Older || found == IndexFound::Newer) database->Clear();
  found == IndexFound::Whole ? SetUp(*database) : CreateTables(*database);
  return database;
}

/// The same; an index that is damaged beyond that is made anew. A file that nobody has used as an index,
/// since there is no list of folders, may have been named by mistake: null.
std::unique_ptr<Database> OpenOrRebuild(const BankPlace& place, IndexFound& found) {
  std::error_code ignored;
  const bool isIndex = fs::exists(place.folders, ignored);
  bool isDamaged = IsNoDatabase(place.index);
  if (isDamaged && !isIndex) return nullptr;
  if (isDamaged) SetAside(place.index);
  for (int tries = 0;; ++tries) {
    try {
      auto database = OpenDatabase(place.index, found);
      if (isDamaged) found = IndexFound::Damaged;
      return database;
    } catch (const DatabaseError& error) {
      isDamaged = ProblemOf(error, place.index).trouble == BankTrouble::Damaged;
      if (!isDamaged || tries > 0) throw;
      if (!isIndex) return nullptr;
      SetAside(place.index);
    }
  }
}

}  // namespace

std::u16string BankExam::Name() const {
  return title.empty() ? PathToText(path.stem()) : title;
}

BankIndex::BankIndex(BankPlace place, Files& files, std::unique_ptr<Database> database, IndexFound found)
    : place_(std::move(place)), files_(&files), database_(std::move(database)), found_(found) {}

std::optional<BankIndex> BankIndex::Open(const BankPlace& place, Files& files, BankProblem& problem) {
  std::error_code ignored;
  if (place.index.has_parent_path()) fs::create_directories(place.index.parent_path(), ignored);
  try {
    IndexFound found = IndexFound::Whole;
    auto database = OpenOrRebuild(place, found);
    if (database) return BankIndex(place, files, std::move(database), found);
    problem = {BankTrouble::NotAnIndex, place.index};
  } catch (const DatabaseError& error) {
    problem = ProblemOf(error, place.index);
  }
  return std::nullopt;
}

std::vector<fs::path> BankIndex::Folders() const {
  return ReadBankFolders(place_.folders);
}

/// Changes the list while no other program does.
BankProblem BankIndex::ChangeFolders(const std::function<void(std::vector<fs::path>&)>& change) {
  try {
    const Transaction lock(*database_);
    std::vector<fs::path> folders = Folders();
    const std::vector<fs::path> before = folders;
    change(folders);
    if (folders == before) return {};
    const std::error_code error = WriteBankFolders(*files_, place_.folders, folders);
    if (error) return {BankTrouble::NotWritable, place_.folders, error.message()};
    return {};
  } catch (const DatabaseError& error) {
    return ProblemAfter(error);
  }
}

BankProblem BankIndex::AddFolder(const fs::path& folder) {
  std::error_code error;
  const fs::path whole = fs::canonical(folder, error);
  if (!error) fs::directory_iterator(whole, error);
  if (error) return {BankTrouble::NoFolder, folder, error.message()};
  return ChangeFolders([&](std::vector<fs::path>& folders) {
    if (std::find(folders.begin(), folders.end(), whole) == folders.end()) folders.push_back(whole);
  });
}

BankProblem BankIndex::RemoveFolder(const fs::path& folder, bool& wasThere) {
  std::error_code error;
  fs::path whole = fs::weakly_canonical(folder, error);
  if (error) whole = fs::absolute(folder, error).lexically_normal();
  if (!whole.has_filename()) whole = whole.parent_path();  // "folder/"
  return ChangeFolders([&](std::vector<fs::path>& folders) { wasThere = std::erase(folders, whole) > 0; });
}

BankProblem BankIndex::ProblemAfter(const DatabaseError& error) {
  BankProblem problem = ProblemOf(error, place_.index);
  if (problem.trouble != BankTrouble::Damaged) return problem;
  try {
    database_->Clear();
    CreateTables(*database_);
  } catch (const DatabaseError& again) {
    problem = ProblemOf(again, place_.index);
  }
  return problem;
}

std::vector<BankExam> BankIndex::ReadExams(const char* condition, BankProblem& problem) const {
  std::vector<BankExam> exams;
  try {
    const std::string sql =
        std::string("SELECT ") + kExamColumns + " FROM exam " + condition + " ORDER BY path";
    Statement rows = database_->Prepare(sql);
    while (rows.Step()) exams.push_back(ExamFrom(rows, 0));
  } catch (const DatabaseError& error) {
    problem = ProblemOf(error, place_.index);
    exams.clear();
  }
  return exams;
}

BankExam ExamFrom(const Statement& row, int column) {
  BankExam exam;
  exam.id = row.Integer(column);
  exam.path = std::string(row.Bytes(column + 1));
  exam.title = row.Text(column + 2);
  exam.size = row.Integer(column + 3);
  exam.written = row.Integer(column + 4);
  exam.isSettled = row.Integer(column + 5) != 0;
  exam.questions = static_cast<int>(row.Integer(column + 6));
  exam.state = static_cast<ExamState>(row.Integer(column + 7));
  exam.firstMissing = static_cast<int>(row.Integer(column + 8));
  if (exam.state == ExamState::NoExam) exam.title.clear();  // any bytes where an exam has its title
  return exam;
}

std::u16string StateText(const BankExam& exam, const StringTable& strings) {
  switch (exam.state) {
    case ExamState::Whole:
      break;
    case ExamState::EndsEarly:
      return exam.questions == 0
                 ? strings.Text(text_id::kBankEndsEarlyAll)
                 : FillMessage(strings.Text(text_id::kBankEndsEarly), {FormatInteger(exam.firstMissing)});
    case ExamState::NoExam:
      return strings.Text(text_id::kBankNoExam);
    case ExamState::Unreadable:
      return strings.Text(text_id::kBankUnreadable);
    case ExamState::TooMuch:
      return strings.Text(text_id::kBankTooMuch);
  }
  return {};
}

}  // namespace quorvantis
