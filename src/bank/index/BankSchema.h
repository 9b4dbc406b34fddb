// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace quorvantis {

/// Tells the files of the bank from other databases.
constexpr std::int64_t kBankApplicationId = 0x51764249;

/// The tables of the index. Paths are bytes, as the file system has them. Texts are those of the exam file,
/// lone surrogates replaced. `gram` and `short` are made of folded texts (FoldedText.h, ShortWords.h) and
/// keep no copy of them, so what is removed from them must be computed again from `content`.
inline constexpr const char* kBankSchema = R"sql(
CREATE TABLE exam(
  id INTEGER PRIMARY KEY,
  path BLOB NOT NULL UNIQUE,
  title TEXT NOT NULL,
  size INTEGER NOT NULL,         -- bytes
  written INTEGER NOT NULL,      -- nanoseconds since 1970
  settled INTEGER NOT NULL,      -- 0 if it may have changed since without a new time
  hash TEXT NOT NULL,            -- SHA-256 of the file
  state INTEGER NOT NULL,        -- ExamState
  first_missing INTEGER NOT NULL,
  questions INTEGER NOT NULL);

-- What searches filter by, narrow so that it stays in memory.
CREATE TABLE question(
  id INTEGER PRIMARY KEY,
  exam INTEGER NOT NULL,
  number INTEGER NOT NULL,       -- 1 to 500
  kind INTEGER NOT NULL,
  has_key INTEGER NOT NULL,
  files INTEGER NOT NULL,        -- how many are attached
  score REAL);                   -- null if no range of scores has the question
CREATE UNIQUE INDEX question_of_exam ON question(exam, number);

CREATE TABLE content(
  question INTEGER PRIMARY KEY,
  text TEXT NOT NULL,
  option_a TEXT NOT NULL, option_b TEXT NOT NULL, option_c TEXT NOT NULL, option_d TEXT NOT NULL,
  option_e TEXT NOT NULL,
  answer TEXT NOT NULL,          -- to fill in
  essay TEXT NOT NULL,
  key_mask INTEGER NOT NULL,
  key TEXT NOT NULL,             -- QuestionContentKey
  sketch BLOB NOT NULL);         -- QuestionSketch
CREATE INDEX content_key ON content(key);

CREATE TABLE attached(
  exam INTEGER NOT NULL,
  number INTEGER NOT NULL,       -- of the question, 0 for files of the exam as a whole
  slot INTEGER NOT NULL,
  name TEXT NOT NULL,
  size INTEGER NOT NULL,
  hash TEXT NOT NULL,            -- SHA-256 of the content
  PRIMARY KEY(exam, number, slot)) WITHOUT ROWID;

CREATE VIRTUAL TABLE gram USING fts5(
  text, options, answers, files, content='', tokenize="trigram case_sensitive 1");
CREATE VIRTUAL TABLE short USING fts5(tokens, content='', tokenize='ascii');
)sql";

}  // namespace quorvantis
