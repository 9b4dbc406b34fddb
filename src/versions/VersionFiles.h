// SPDX-License-Identifier: MIT
// The files in a folder of versions.
#pragma once

#include <string>
#include <string_view>

namespace quorvantis {

inline constexpr std::u16string_view kPlanFile = u"plan.json";
inline constexpr std::u16string_view kCombinedKeysFile = u"keys.csv";
inline constexpr std::u16string_view kReportFile = u"report.txt";

/// The largest plan or table that is read, in bytes: several times those of 500 questions in 26 versions.
inline constexpr std::size_t kLargestTable = std::size_t{64} * 1024 * 1024;

inline std::u16string ExamFileOf(std::u16string_view version) {
  return std::u16string(version) + u".exm";
}
inline std::u16string KeyFileOf(std::u16string_view version) {
  return std::u16string(version) + u" key.csv";
}

}  // namespace quorvantis
