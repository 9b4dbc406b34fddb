// SPDX-License-Identifier: MIT
#include "check/FileRules.h"

#include "text/NumberText.h"

#include <cstdint>

namespace quorvantis {

void FileRule::Check(const CheckedExam& exam, FindingList& findings) const {
  for (const CheckedFile& file : exam.files) CheckFile(file, findings);
}

void FileMissing::CheckFile(const CheckedFile& file, FindingList& findings) const {
  if (file.health == FileHealth::Missing) findings.Add(file.place, {file.name});
}

void FileEmpty::CheckFile(const CheckedFile& file, FindingList& findings) const {
  if (file.health == FileHealth::Empty) findings.Add(file.place, {file.name});
}

void FileDamaged::CheckFile(const CheckedFile& file, FindingList& findings) const {
  if (file.health == FileHealth::Damaged) findings.Add(file.place, {file.name});
}

void FileMisnamed::CheckFile(const CheckedFile& file, FindingList& findings) const {
  if (file.health == FileHealth::Misnamed) findings.Add(file.place, {file.name});
}

void FileNotShown::CheckFile(const CheckedFile& file, FindingList& findings) const {
  if (file.kind == FileKind::Other) findings.Add(file.place, {file.name});
}

void FileTooLarge::CheckFile(const CheckedFile& file, FindingList& findings) const {
  constexpr std::uintmax_t kMegabyte = std::uintmax_t{1024} * 1024;
  constexpr std::uintmax_t kLargest = 50 * kMegabyte;
  if (file.size > kLargest)
    findings.Add(file.place, {file.name, FormatInteger(static_cast<std::int64_t>(file.size / kMegabyte))});
}

}  // namespace quorvantis
