// SPDX-License-Identifier: MIT
#pragma once

#include "check/CheckedExam.h"
#include "check/Finding.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace quorvantis {

class CheckRule;
class StringTable;

/// A rule in the table of rules (check/CheckRules.h).
struct CheckRuleRow {
  std::string_view id;  ///< words with hyphens. Users write it down and exams are remembered by it: keep it
  Severity severity;
  int text;  ///< number of its text
  const CheckRule& rule;
};

/// Takes the findings of one rule, and fills the text of the rule.
class FindingList {
 public:
  /// All must outlive this. New findings go to the end of `findings`.
  FindingList(const CheckRuleRow& row, const StringTable& strings, std::vector<Finding>& findings)
      : row_(row), strings_(strings), findings_(findings) {}

  void Add(const TextPlace& place, std::initializer_list<std::u16string_view> values = {});

  /// The same for a rule about texts: says in which text it is, unless it is that of a question.
  void AddIn(const TextPlace& place, std::initializer_list<std::u16string_view> values = {});

 private:
  const CheckRuleRow& row_;
  const StringTable& strings_;
  std::vector<Finding>& findings_;
};

/// One thing that can be wrong with an exam. Rules have no state; the only instances are in the table.
class CheckRule {
 public:
  CheckRule() = default;
  CheckRule(const CheckRule&) = delete;
  CheckRule& operator=(const CheckRule&) = delete;
  virtual ~CheckRule() = default;

  virtual void Check(const CheckedExam& exam, FindingList& findings) const = 0;
};

/// A rule that looks at one question after the other. Empty ones are left to the rule about them.
class QuestionRule : public CheckRule {
 public:
  void Check(const CheckedExam& exam, FindingList& findings) const final;

 private:
  virtual void CheckQuestion(const CheckedQuestion& question, FindingList& findings) const = 0;
};

/// A rule that looks at one text after the other.
class TextRule : public CheckRule {
 public:
  void Check(const CheckedExam& exam, FindingList& findings) const final;

 private:
  virtual void CheckText(const CheckedText& text, FindingList& findings) const = 0;
};

}  // namespace quorvantis
