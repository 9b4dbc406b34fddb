// SPDX-License-Identifier: MIT
// The only header that knows of SQLite.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace quorvantis {

/// Why a database did not do what it was asked to. Never leaves the folders of the bank: their public classes
/// turn it into a BankProblem.
class DatabaseError : public std::runtime_error {
 public:
  DatabaseError(int code, const std::string& what) : std::runtime_error(what), code_(code) {}

  /// The library's extended result code.
  int Code() const { return code_; }

 private:
  int code_;
};

/// A prepared statement. Texts and bytes of a row are valid until the next Step.
class Statement {
 public:
  Statement(sqlite3* database, std::string_view sql);

  /// Values by their place in the statement, from 1 on. They stay bound after Reset.
  Statement& Bind(int place, std::int64_t value);
  Statement& Bind(int place, double value);
  Statement& BindText(int place, std::string_view utf8);
  Statement& BindText(int place, std::u16string_view text);
  Statement& BindBytes(int place, std::string_view bytes);
  Statement& BindNull(int place);

  /// True if there is a row; after the last one the statement can be run again.
  bool Step();
  /// Runs a statement that gives no rows.
  void Run();
  void Reset();

  /// Columns of the row, from 0 on.
  std::int64_t Integer(int column) const;
  double Real(int column) const;
  bool IsNull(int column) const;
  std::string_view Bytes(int column) const;
  std::u16string Text(int column) const;

 private:
  struct Finalizer {
    void operator()(sqlite3_stmt* statement) const;
  };

  void Check(int code) const;

  std::unique_ptr<sqlite3_stmt, Finalizer> statement_;
};

/// A connection to a database file, for one thread. Every function throws DatabaseError when it fails.
class Database {
 public:
  /// Opens the file, or creates it. Others are waited for `patience` milliseconds at most.
  Database(const std::filesystem::path& file, int patience);

  void Execute(const char* sql);
  Statement Prepare(std::string_view sql) const { return {database_.get(), sql}; }
  std::int64_t Number(std::string_view sql) const;  ///< the first column of the first row, 0 if there is none
  std::int64_t LastRow() const;
  void WaitAtMost(int milliseconds);

  /// Empties the file under its own locks, whatever is in it: other programs that have it open see an empty
  /// database.
  void Clear();

 private:
  struct Closer {
    void operator()(sqlite3* database) const;
  };

  std::unique_ptr<sqlite3, Closer> database_;
};

/// What is written belongs together: it is undone unless Commit is reached. There is one writer at a time;
/// the constructor waits for others as long as the database says.
class Transaction {
 public:
  explicit Transaction(Database& database);
  ~Transaction();
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;

  void Commit();

 private:
  Database& database_;
  bool isOpen_ = true;
};

}  // namespace quorvantis
