// SPDX-License-Identifier: MIT
#include "bank/index/Database.h"

#include "text/Utf.h"

#include <sqlite3.h>

namespace quorvantis {
namespace {

[[noreturn]] void Fail(sqlite3* database, int code) {
  throw DatabaseError(code, database != nullptr ? sqlite3_errmsg(database) : sqlite3_errstr(code));
}

void CheckDone(sqlite3* database, int code) {
  if (code != SQLITE_OK) Fail(database, sqlite3_extended_errcode(database));
}

}  // namespace

void Statement::Finalizer::operator()(sqlite3_stmt* statement) const {
  sqlite3_finalize(statement);
}

Statement::Statement(sqlite3* database, std::string_view sql) {
  sqlite3_stmt* statement = nullptr;
  const int size = static_cast<int>(sql.size());
  const int code =
      sqlite3_prepare_v3(database, sql.data(), size, SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
  statement_.reset(statement);
  CheckDone(database, code);
}

void Statement::Check(int code) const {
  CheckDone(sqlite3_db_handle(statement_.get()), code);
}

Statement& Statement::Bind(int place, std::int64_t value) {
  Check(sqlite3_bind_int64(statement_.get(), place, value));
  return *this;
}

Statement& Statement::Bind(int place, double value) {
  Check(sqlite3_bind_double(statement_.get(), place, value));
  return *this;
}

Statement& Statement::BindText(int place, std::string_view utf8) {
  const char* const text = utf8.data() != nullptr ? utf8.data() : "";
  Check(sqlite3_bind_text64(statement_.get(), place, text, utf8.size(), SQLITE_TRANSIENT, SQLITE_UTF8));
  return *this;
}

Statement& Statement::BindText(int place, std::u16string_view text) {
  return BindText(place, std::string_view(Utf16ToUtf8(text)));
}

Statement& Statement::BindBytes(int place, std::string_view bytes) {
  const char* const data = bytes.data() != nullptr ? bytes.data() : "";
  Check(sqlite3_bind_blob64(statement_.get(), place, data, bytes.size(), SQLITE_TRANSIENT));
  return *this;
}

Statement& Statement::BindNull(int place) {
  Check(sqlite3_bind_null(statement_.get(), place));
  return *this;
}

bool Statement::Step() {
  const int code = sqlite3_step(statement_.get());
  if (code == SQLITE_ROW) return true;
  sqlite3* const database = sqlite3_db_handle(statement_.get());
  if (code == SQLITE_DONE) {
    Reset();
    return false;
  }
  const DatabaseError error(sqlite3_extended_errcode(database), sqlite3_errmsg(database));
  Reset();
  throw error;
}

void Statement::Run() {
  while (Step()) continue;
}

void Statement::Reset() {
  sqlite3_reset(statement_.get());
}

std::int64_t Statement::Integer(int column) const {
  return sqlite3_column_int64(statement_.get(), column);
}

double Statement::Real(int column) const {
  return sqlite3_column_double(statement_.get(), column);
}

bool Statement::IsNull(int column) const {
  return sqlite3_column_type(statement_.get(), column) == SQLITE_NULL;
}

std::string_view Statement::Bytes(int column) const {
  const void* const bytes = sqlite3_column_blob(statement_.get(), column);
  const auto size = static_cast<std::size_t>(sqlite3_column_bytes(statement_.get(), column));
  return {static_cast<const char*>(bytes), bytes != nullptr ? size : 0};
}

std::u16string Statement::Text(int column) const {
  return Utf8ToUtf16(Bytes(column));
}

void Database::Closer::operator()(sqlite3* database) const {
  sqlite3_close_v2(database);
}

Database::Database(const std::filesystem::path& file, int patience) {
  constexpr int kFlags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX;
  sqlite3* database = nullptr;
  const int code = sqlite3_open_v2(file.c_str(), &database, kFlags, nullptr);
  database_.reset(database);
  if (code != SQLITE_OK) Fail(database, database != nullptr ? sqlite3_extended_errcode(database) : code);
  sqlite3_extended_result_codes(database, 1);
  WaitAtMost(patience);
}

void Database::Execute(const char* sql) {
  CheckDone(database_.get(), sqlite3_exec(database_.get(), sql, nullptr, nullptr, nullptr));
}

std::int64_t Database::Number(std::string_view sql) const {
  Statement statement = Prepare(sql);
  return statement.Step() ? statement.Integer(0) : 0;
}

std::int64_t Database::LastRow() const {
  return sqlite3_last_insert_rowid(database_.get());
}

void Database::WaitAtMost(int milliseconds) {
  sqlite3_busy_timeout(database_.get(), milliseconds);
}

void Database::Clear() {
  sqlite3* const database = database_.get();
  sqlite3_db_config(database, SQLITE_DBCONFIG_RESET_DATABASE, 1, nullptr);
  const int code = sqlite3_exec(database, "VACUUM", nullptr, nullptr, nullptr);
  sqlite3_db_config(database, SQLITE_DBCONFIG_RESET_DATABASE, 0, nullptr);
  CheckDone(database, code);
}

Transaction::Transaction(Database& database) : database_(database) {
  database_.Execute("BEGIN IMMEDIATE");
}

Transaction::~Transaction() {
  if (!isOpen_) return;
  try {
    database_.Execute("ROLLBACK");
  } catch (const DatabaseError&) {
    isOpen_ = false;  // the failure that led here has rolled it back already
  }
}

void Transaction::Commit() {
  database_.Execute("COMMIT");
  isOpen_ = false;
}

}  // namespace quorvantis
