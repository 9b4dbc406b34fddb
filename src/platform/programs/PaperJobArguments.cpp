// SPDX-License-Identifier: MIT
#include "platform/programs/PaperJobArguments.h"

#include "text/NumberText.h"
#include "text/Utf.h"

#include <algorithm>
#include <array>

namespace quorvantis {
namespace {

constexpr std::size_t kCommonArguments = 3;
constexpr std::size_t kJobArguments = 7;

constexpr std::string_view kFilledUp = "filled-up";
constexpr std::string_view kAsItIs = "as-it-is";

/// In the order of their values.
constexpr std::array<std::string_view, 4> kSheetWords{"paper", "solutions", "key", "answers"};
static_assert(static_cast<std::size_t>(Sheet::Answers) + 1 == kSheetWords.size());

std::optional<PaperJob> JobOf(std::span<const std::string> arguments) {
  const auto word = std::ranges::find(kSheetWords, std::string_view(arguments[0]));
  if (word == kSheetWords.end()) return std::nullopt;
  return PaperJob{arguments[3],
                  arguments[4],
                  static_cast<Sheet>(word - kSheetWords.begin()),
                  Utf8ToUtf16(arguments[5]),
                  Utf8ToUtf16(arguments[6]),
                  arguments[1] == "large",
                  arguments[2] == kFilledUp};
}

}  // namespace

std::vector<std::string> PaperArguments(const PaperOrder& order) {
  std::vector<std::string> arguments{order.folder.string(), order.applicationFolder.string(),
                                     std::to_string(order.languageId)};
  for (const PaperJob& job : order.jobs) {
    const std::string_view word = kSheetWords[static_cast<std::size_t>(job.sheet)];
    arguments.insert(arguments.end(), {std::string(word), job.largePrint ? "large" : "normal",
                                       std::string(job.isFilledUp ? kFilledUp : kAsItIs), job.exam.string(),
                                       job.target.string(), Utf16ToUtf8(job.version), Utf16ToUtf8(job.code)});
  }
  return arguments;
}

std::optional<PaperOrder> PaperOrderOf(std::span<const std::string> arguments) {
  if (arguments.size() < kCommonArguments) return std::nullopt;
  PaperOrder order{arguments[0], arguments[1], ParseInteger(Utf8ToUtf16(arguments[2])), {}};
  std::span<const std::string> rest = arguments.subspan(kCommonArguments);
  if (rest.size() % kJobArguments != 0) return std::nullopt;
  for (; !rest.empty(); rest = rest.subspan(kJobArguments)) {
    const std::optional<PaperJob> job = JobOf(rest.first(kJobArguments));
    if (!job) return std::nullopt;
    order.jobs.push_back(*job);
  }
  return order;
}

}  // namespace quorvantis
