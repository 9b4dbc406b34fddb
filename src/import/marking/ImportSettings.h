// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace quorvantis {

/// The rules of one repository of "ImportExam.ini": patterns for the parts of a paper. An empty pattern is
/// not a rule. The members have the names of the import dialog.
struct ImportSettings {
  std::u16string m_strPattern;                 ///< "Pattern": the parts of a question, as named groups
  std::u16string m_strPreAnswer;               ///< "PreAnswer": what precedes a question's own answer
  std::u16string m_strPreQuestion;             ///< "PreQuestion": what a question begins with
  std::u16string m_strChoiceAnswerPattern;     ///< "ChoiceAnswerPattern": the key of all choice questions
  std::u16string m_strChoiceAnswer;            ///< "ChoiceAnswer": one answer in it
  std::u16string m_strJudgementAnswerPattern;  ///< "JudgementAnswerPattern": that of true/false questions
  std::u16string m_strJudgementAnswer;         ///< "JudgementAnswer": one answer in it
  std::u16string m_strPreAllAnswer;            ///< "PreAllAnswer": the heading of the answer section
  std::u16string m_strPreParenQuestion;        ///< "PreParenQuestion": like "PreQuestion"
  std::u16string m_strTitle;                   ///< "Title": text to throw away
  std::u16string m_strBmp;                     ///< "Bmp": the place of a question's picture
  std::u16string m_strChoiceBmp;               ///< "ChoiceBmp": the place of a picture among the options
  std::u16string m_strPreTable;                ///< "PreTable": kept, but unused
  std::vector<std::u16string> prepare;         ///< "Prepare": names of steps before marking
  bool listLabels = false;                     ///< "ListLabels": 1 for papers with automatic numbers
  int m_nTable = 0;                            ///< "Table": 1 for papers that are tables
  std::u16string m_strTableQuesKey;            ///< "QuestionKey": identifies the column of the questions
  std::u16string m_strTableAnsKey;             ///< "AnswerKey": identifies that of the answers
};

}  // namespace quorvantis
