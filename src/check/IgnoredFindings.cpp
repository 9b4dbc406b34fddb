// SPDX-License-Identifier: MIT
#include "check/IgnoredFindings.h"

#include "check/CheckRules.h"
#include "ini/ProfileFile.h"
#include "model/ExamFields.h"
#include "model/document/FrameSetExam.h"
#include "platform/WholeFile.h"
#include "text/NumberText.h"
#include "text/PathText.h"
#include "text/Utf.h"

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <utility>

namespace quorvantis {
namespace {

/// FNV-1a over the units of texts, each with its length.
class ContentHash {
 public:
  void Take(std::uint64_t number) {
    for (int shift = 0; shift < 64; shift += 8) {
      hash_ ^= (number >> shift) & 0xFF;
      hash_ *= 0x100000001B3;
    }
  }
  void Take(std::u16string_view text) {
    Take(text.size());
    for (const char16_t unit : text) {
      hash_ ^= unit;
      hash_ *= 0x100000001B3;
    }
  }
  std::u16string Digits() const {
    return FormatHexadecimal(static_cast<std::uint32_t>(hash_ >> 32)) + u'-' +
           FormatHexadecimal(static_cast<std::uint32_t>(hash_));
  }

 private:
  std::uint64_t hash_ = 0xCBF29CE484222325;
};

std::u16string HashOfPlace(const Finding& finding, const FrameSetExam& exam) {
  ContentHash hash;
  hash.Take(static_cast<std::uint64_t>(finding.place.field));
  hash.Take(std::uint64_t{finding.place.index});
  if (!IsQuestionNumber(finding.place.question)) return hash.Digits();
  const ExamQuestion& question = exam.Question(finding.place.question);
  hash.Take(static_cast<std::uint64_t>(question.kind));
  for (const std::u16string* text :
       {&question.text, &question.answerLetters, &question.answerText, &question.essayAnswer})
    hash.Take(*text);
  for (const std::u16string& option : question.options) hash.Take(option);
  for (const std::u16string& name : question.attachmentNames) hash.Take(name);
  return hash.Digits();
}

std::u16string SectionOf(const std::filesystem::path& exam) {
  ContentHash hash;
  hash.Take(PathToText(exam));
  return hash.Digits();
}

std::vector<std::u16string> Words(std::u16string_view text) {
  std::vector<std::u16string> words;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(u' '), text.size());
    if (end > 0) words.emplace_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return words;
}

/// A section of the file as it is, from its heading to the next one.
struct SectionLines {
  std::string_view name;
  std::string_view lines;
};

std::vector<SectionLines> SectionsIn(std::string_view bytes) {
  std::vector<SectionLines> sections;
  for (std::size_t at = 0; at < bytes.size();) {
    const std::size_t end = std::min(bytes.find('\n', at), bytes.size() - 1) + 1;
    const std::string_view line = bytes.substr(at, end - at);
    if (line.starts_with('[')) {
      sections.push_back({line.substr(1, line.find(']') - 1), line});
    } else if (!sections.empty()) {
      const std::size_t size = sections.back().lines.size() + line.size();
      sections.back().lines = bytes.substr(at + line.size() - size, size);
    }
    at = end;
  }
  return sections;
}

}  // namespace

void IgnoredFindings::Open(const std::filesystem::path& exam) {
  exam_ = exam;
  places_.clear();
  if (exam.empty()) return;
  const ProfileFile profile(file_);
  const std::u16string section = SectionOf(exam);
  for (const CheckRuleRow& row : CheckRules()) {
    if (const auto value = profile.Value(section, Utf8ToUtf16(row.id)))
      places_.emplace(row.id, Words(*value));
  }
}

void IgnoredFindings::TakeTo(const std::filesystem::path& exam) {
  if (exam == exam_) return;
  exam_ = exam;
  if (!places_.empty()) Write();
}

bool IgnoredFindings::Has(const Finding& finding, const FrameSetExam& exam) const {
  const auto places = places_.find(finding.rule);
  if (places == places_.end()) return false;
  const std::u16string hash = HashOfPlace(finding, exam);
  return std::find(places->second.begin(), places->second.end(), hash) != places->second.end();
}

void IgnoredFindings::Add(const Finding& finding, const FrameSetExam& exam) {
  if (Has(finding, exam)) return;
  std::vector<std::u16string>& places = places_[std::string(finding.rule)];
  places.push_back(HashOfPlace(finding, exam));
  if (places.size() > kMostPlaces) places.erase(places.begin());
  Write();
}

void IgnoredFindings::Remove(const Finding& finding, const FrameSetExam& exam) {
  const auto places = places_.find(finding.rule);
  if (places == places_.end()) return;
  std::erase(places->second, HashOfPlace(finding, exam));
  Write();
}

/// Writes the file anew, with this exam at its end and without the oldest ones.
void IgnoredFindings::Write() const {
  constexpr std::size_t kLargest = std::size_t{16} << 20;  // bytes; more was not written here
  const auto old = ReadWholeFile(file_, kLargest);
  if (exam_.empty() || !old) return;
  const std::string own = Utf16ToUtf8(SectionOf(exam_));
  std::vector<SectionLines> sections = SectionsIn(*old);
  std::erase_if(sections, [&own](const SectionLines& section) { return section.name == own; });
  const std::size_t first = sections.size() - std::min(sections.size(), kMostExams - 1);
  std::string lines;
  for (std::size_t i = first; i < sections.size(); ++i) lines += sections[i].lines;
  if (!lines.empty() && !lines.ends_with('\n')) lines += '\n';
  SaveWholeFile(files_, file_, lines + OwnSection(own));
}

std::string IgnoredFindings::OwnSection(const std::string& name) const {
  std::string lines = "[" + name + "]\n";
  const std::string path = Utf16ToUtf8(PathToText(exam_));  // for people who read the file
  if (path.find_first_of("\r\n") == path.npos) lines.append("Exam=").append(path).append("\n");
  for (const auto& [rule, hashes] : places_) {
    if (hashes.empty()) continue;
    lines.append(rule).append("=");
    for (const std::u16string& hash : hashes) lines.append(Utf16ToUtf8(hash)).append(" ");
    lines.back() = '\n';
  }
  return lines;
}

}  // namespace quorvantis
