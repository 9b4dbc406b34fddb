// SPDX-License-Identifier: MIT
#include "bank/search/BankQuestions.h"

#include <string>

namespace quorvantis {

BankQuestions::BankQuestions(const BankIndex& index)
    : question_(index.Data().Prepare(
          std::string("SELECT ") + kExamColumns +
          ", question.number, question.kind, question.score, text, option_a, option_b, option_c, option_d, "
          "option_e, answer, essay, key_mask, key FROM question "
          "JOIN content ON content.question = question.id JOIN exam ON exam.id = question.exam "
          "WHERE question.id = ?")),
      files_(index.Data().Prepare(
          "SELECT name, size, hash FROM attached WHERE exam = ? AND number = ? ORDER BY slot")) {}

std::optional<BankQuestion> BankQuestions::Read(std::int64_t id) {
  question_.Reset();
  question_.Bind(1, id);
  if (!question_.Step()) return std::nullopt;
  BankQuestion question;
  question.id = id;
  question.exam = ExamFrom(question_, 0);
  int column = kExamColumnCount;
  question.number = static_cast<int>(question_.Integer(column++));
  question.kind = static_cast<QuestionKind>(question_.Integer(column++));
  if (!question_.IsNull(column)) question.score = question_.Real(column);
  question.text = question_.Text(++column);
  for (std::u16string& option : question.options) option = question_.Text(++column);
  question.answerText = question_.Text(++column);
  question.essayAnswer = question_.Text(++column);
  question.answerMask = static_cast<int>(question_.Integer(++column));
  question.key = std::string(question_.Bytes(++column));
  question_.Reset();
  files_.Bind(1, question.exam.id).Bind(2, std::int64_t{question.number});
  while (files_.Step())
    question.files.push_back({files_.Text(0), files_.Integer(1), std::string(files_.Bytes(2))});
  return question;
}

}  // namespace quorvantis
