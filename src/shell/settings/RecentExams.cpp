// SPDX-License-Identifier: MIT
#include "shell/settings/RecentExams.h"

#include "platform/WholeFile.h"
#include "text/NumberText.h"
#include "text/PathText.h"

#include <algorithm>

namespace quorvantis {
namespace {

constexpr std::u16string_view kRecentSection = u"recent";

std::u16string RecentKey(std::size_t place) {
  return u"Exam" + FormatInteger(place + 1);
}

}  // namespace

std::vector<std::filesystem::path> RecentExams::Read() const {
  const ProfileFile profile(file_, &codePage_);
  std::vector<std::filesystem::path> exams;
  for (std::size_t i = 0; i < kMost; ++i) {
    std::filesystem::path exam = TextToPath(profile.Value(kRecentSection, RecentKey(i)).value_or(u""));
    if (exam.is_absolute() && std::ranges::find(exams, exam) == exams.end()) exams.push_back(std::move(exam));
  }
  return exams;
}

void RecentExams::Add(const std::filesystem::path& exam) const {
  std::vector<std::filesystem::path> exams = Read();
  if (!exams.empty() && exams.front() == exam) return;
  std::erase(exams, exam);
  exams.insert(exams.begin(), exam);
  Write(exams);
}

void RecentExams::Drop(const std::filesystem::path& exam) const {
  std::vector<std::filesystem::path> exams = Read();
  if (std::erase(exams, exam) > 0) Write(exams);
}

void RecentExams::Clear() const {
  Write({});
}

/// In quotes, since a name may end in blanks. A path that the file's encoding lacks is left out.
void RecentExams::Write(const std::vector<std::filesystem::path>& exams) const {
  ProfileFile profile(file_, &codePage_);
  if (!profile.IsWhole()) return;
  std::size_t place = 0;
  for (const std::filesystem::path& exam : exams) {
    if (place == kMost) break;
    if (profile.SetValue(kRecentSection, RecentKey(place), u'"' + PathToText(exam) + u'"')) ++place;
  }
  for (; place < kMost; ++place) {
    if (profile.Value(kRecentSection, RecentKey(place)))
      profile.SetValue(kRecentSection, RecentKey(place), u"");
  }
  SaveWholeFile(files_, file_, profile.Bytes());
}

}  // namespace quorvantis
