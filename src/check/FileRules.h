// SPDX-License-Identifier: MIT
// What can be wrong with attached files, those of the exam as a whole included.
#pragma once

#include "check/CheckRule.h"

namespace quorvantis {

/// A rule that looks at one file after the other.
class FileRule : public CheckRule {
 public:
  void Check(const CheckedExam& exam, FindingList& findings) const final;

 private:
  virtual void CheckFile(const CheckedFile& file, FindingList& findings) const = 0;
};

class FileMissing : public FileRule {
  void CheckFile(const CheckedFile& file, FindingList& findings) const override;
};

class FileEmpty : public FileRule {
  void CheckFile(const CheckedFile& file, FindingList& findings) const override;
};

class FileDamaged : public FileRule {
  void CheckFile(const CheckedFile& file, FindingList& findings) const override;
};

class FileMisnamed : public FileRule {
  void CheckFile(const CheckedFile& file, FindingList& findings) const override;
};

/// A kind of file that no browser shows and that the program cannot convert.
class FileNotShown : public FileRule {
  void CheckFile(const CheckedFile& file, FindingList& findings) const override;
};

/// More than 50 MB.
class FileTooLarge : public FileRule {
  void CheckFile(const CheckedFile& file, FindingList& findings) const override;
};

}  // namespace quorvantis
