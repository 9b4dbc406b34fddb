// SPDX-License-Identifier: MIT
#include "cli/form/PrintedOverview.h"

#include "cli/form/KindNames.h"
#include "overview/OverviewRows.h"
#include "text/NumberText.h"
#include "text/Utf.h"

#include <algorithm>
#include <array>
#include <ostream>
#include <string>

namespace quorvantis::cli {
namespace {

constexpr std::size_t kColumns = 7;
constexpr std::size_t kWidestKey = 24;  // units

using Line = std::array<std::u16string, kColumns>;

/// Roughly how many places a terminal needs: two for the characters of East Asia.
std::size_t WidthOf(const std::u16string& text) {
  std::size_t width = 0;
  for (const char16_t unit : text) {
    const bool isWide = (unit >= 0x1100 && unit <= 0x115F) || (unit >= 0x2E80 && unit <= 0xA4CF) ||
                        (unit >= 0xAC00 && unit <= 0xD7A3) || (unit >= 0xF900 && unit <= 0xFAFF) ||
                        (unit >= 0xFF00 && unit <= 0xFF60);
    width += isWide ? 2 : 1;
  }
  return width;
}

std::u16string MissingWords(const MissingParts& missing) {
  std::u16string words;
  const auto add = [&words](bool lacks, const char16_t* word) {
    if (lacks) words.append(words.empty() ? u"" : u", ").append(word);
  };
  add(missing.text, u"text");
  add(missing.key, u"key");
  add(missing.options, u"options");
  add(missing.files, u"file");
  return words;
}

std::u16string ShortKey(const std::u16string& key) {
  return key.size() <= kWidestKey ? key : key.substr(0, kWidestKey - 1) + u'\u2026';
}

Line LineOf(const OverviewRow& row) {
  return {FormatInteger(row.number),
          Utf8ToUtf16(KindName(row.kind)),
          row.score ? FormatScore(*row.score) : u"same",
          FormatInteger(row.files),
          ShortKey(row.key),
          MissingWords(row.missing),
          row.firstLine};
}

}  // namespace

void PrintOverview(std::ostream& out, const FrameSetExam& exam) {
  std::vector<Line> lines{{u"No.", u"Kind", u"Score", u"Files", u"Key", u"Missing", u"Text"}};
  for (const OverviewRow& row : OverviewRows({exam, exam.questionCount})) lines.push_back(LineOf(row));
  std::array<std::size_t, kColumns> widths{};
  for (const Line& line : lines) {
    for (std::size_t i = 0; i < kColumns; ++i) widths[i] = std::max(widths[i], WidthOf(line[i]));
  }
  for (const Line& line : lines) {
    std::string printed;
    for (std::size_t i = 0; i < kColumns; ++i)
      printed += Utf16ToUtf8(line[i]) + std::string(widths[i] - WidthOf(line[i]) + 2, ' ');
    out << printed.substr(0, printed.find_last_not_of(' ') + 1) << "\n";
  }
}

}  // namespace quorvantis::cli
